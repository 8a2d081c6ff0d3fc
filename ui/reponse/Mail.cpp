#include "ui/reponse/Mail.h"

#include "documents/AdresseMail.h"
#include "model/Echec.h"

#include <QPointer>
#include <QProcess>
#include <QTimer>
#include <QUrl>

#include <gio/gio.h>

#include <algorithm>
#include <memory>
#include <utility>

namespace Quillet {

namespace {

template <auto liberer>
using Liberer = decltype([](auto *objet) { liberer(objet); });
using Programme = std::unique_ptr<GAppInfo, Liberer<g_object_unref>>;
using Mots = std::unique_ptr<char *, Liberer<g_strfreev>>;

QString encode(const QString &texte, const QByteArray &saufs = {})
{
    return QString::fromLatin1(QUrl::toPercentEncoding(texte, saufs));
}

// A line break would begin another header.
QString surUneLigne(QString texte)
{
    const auto deControle = [](QChar lettre) { return lettre.category() == QChar::Other_Control; };
    std::ranges::replace_if(texte, deControle, u' ');
    return texte;
}

QString enHtml(const QString &corps, const std::optional<QString> &enGras)
{
    const auto echapper = [](const QString &texte) {
        return texte.toHtmlEscaped().replace(u'\n', QStringLiteral("<br>"));
    };
    const qsizetype debut = enGras && !enGras->isEmpty() ? corps.indexOf(*enGras) : -1;
    QString html = echapper(corps.left(debut));
    if (debut >= 0)
        html += QStringLiteral("<b>") + echapper(*enGras) + QStringLiteral("</b>")
                + echapper(corps.mid(debut + enGras->size()));
    return QStringLiteral("<div style=\"font-family:Helvetica,sans-serif;font-size:12pt;white-space:pre-wrap\">") + html
           + QStringLiteral("</div>");
}

QString mailto(const QString &a, const QString &sujet, const QString &corps)
{
    QString lignes = corps;
    lignes.replace(u'\n', QStringLiteral("\r\n")); // what the scheme asks for
    return QStringLiteral("mailto:%1?subject=%2&body=%3").arg(encode(a, "@"), encode(sujet), encode(lignes));
}

// Values of its own option: separated by commas, so that each is encoded whole. Its usual quoted form would let a
// subject end the quotes and attach a file.
QString pourThunderbird(const QString &a, const QString &sujet, const QString &html)
{
    return QStringLiteral("to=%1,subject=%2,format=html,body=%3").arg(encode(a), encode(sujet), encode(html));
}

bool estThunderbird(GAppInfo *programme)
{
    const auto leNomme = [](const char *nom) {
        return QString::fromUtf8(nom).contains(QLatin1String("thunderbird"), Qt::CaseInsensitive);
    };
    return leNomme(g_app_info_get_id(programme)) || leNomme(g_app_info_get_executable(programme));
}

// The words of its command line, without the places ("%u", "@@u") where a desktop puts what to open.
QStringList ligneDeCommande(GAppInfo *programme)
{
    const char *exec = g_app_info_get_commandline(programme);
    char **mots = nullptr;
    if (!exec || !g_shell_parse_argv(exec, nullptr, &mots, nullptr))
        return {};
    const Mots garde(mots);
    QStringList ligne;
    for (char **mot = mots; *mot; ++mot) {
        const QString texte = QString::fromUtf8(*mot);
        if (!texte.startsWith(QLatin1String("@@")) && !(texte.size() == 2 && texte.startsWith(u'%')))
            ligne.append(texte);
    }
    return ligne;
}

bool composer(GAppInfo *programme, const QString &message)
{
    QStringList mots = ligneDeCommande(programme);
    if (mots.isEmpty())
        return false;
    const QString executable = mots.takeFirst();
    return QProcess::startDetached(executable, mots << QStringLiteral("-compose") << message);
}

QString nom(GAppInfo *programme)
{
    return QString::fromUtf8(g_app_info_get_name(programme));
}

QString pasOuvert(const QString &programme)
{
    return QStringLiteral("%1 ne s’est pas ouvert.").arg(programme);
}

// Waits for what the desktop says of a program that it was asked to start, for as long as it may take.
class Lancement : public QObject
{
public:
    Lancement(QObject *temoin, QString programme, std::function<void(const QString &)> echouer,
              std::chrono::milliseconds patience)
        : QObject(temoin), programme_(std::move(programme)), echouer_(std::move(echouer))
    {
        const auto sansReponse = [this] {
            finir(QStringLiteral("%1 n’a pas encore répondu. S’il ne s’ouvre pas, lancez-le vous-même, puis "
                                 "recommencez.")
                      .arg(programme_));
        };
        QTimer::singleShot(patience, this, sansReponse);
    }

    // `attente`: a QPointer to one, of its own, for the answer may come after it is gone.
    static void repondre(GObject *programme, GAsyncResult *reponse, gpointer attente)
    {
        const std::unique_ptr<QPointer<Lancement>> elle(static_cast<QPointer<Lancement> *>(attente));
        const bool parti = g_app_info_launch_uris_finish(G_APP_INFO(programme), reponse, nullptr);
        if (*elle)
            (*elle)->finir(parti ? QString() : pasOuvert((*elle)->programme_));
    }

private:
    void finir(const QString &echec)
    {
        deleteLater();
        if (!std::exchange(finie_, true) && !echec.isEmpty())
            echouer_(echec);
    }

    QString programme_;
    std::function<void(const QString &)> echouer_;
    bool finie_ = false;
};

void ouvrir(GAppInfo *programme, const QString &adresse, Lancement *attente)
{
    QByteArray octets = adresse.toUtf8();
    GList lien{octets.data(), nullptr, nullptr};
    g_app_info_launch_uris_async(programme, &lien, nullptr, nullptr, Lancement::repondre,
                                 new QPointer<Lancement>(attente));
}

} // namespace

bool Mail::ecrire(const Message &message, QObject *temoin, const std::function<void(const QString &)> &echouer,
                  std::chrono::milliseconds patience)
{
    const Programme programme(g_app_info_get_default_for_uri_scheme("mailto"));
    if (!programme)
        return false;
    const QString destinataire = AdresseMail::dans(message.a);
    const QString titre = surUneLigne(message.sujet);
    if (!estThunderbird(programme.get()))
        ouvrir(programme.get(), mailto(destinataire, titre, message.corps),
               new Lancement(temoin, nom(programme.get()), echouer, patience));
    else if (!composer(programme.get(), pourThunderbird(destinataire, titre, enHtml(message.corps, message.enGras))))
        throw Echec(pasOuvert(nom(programme.get())));
    return true;
}

} // namespace Quillet
