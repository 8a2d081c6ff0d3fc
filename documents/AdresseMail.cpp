#include "documents/AdresseMail.h"

#include <QUrl>

#include <algorithm>

namespace Quillet {

namespace {

bool estSeule(const QString &adresse)
{
    const auto interdite = [](QChar lettre) {
        return QStringView(u",;\"<>()[]:\\").contains(lettre) || lettre.isSpace() || !lettre.isPrint();
    };
    return adresse.count(u'@') == 1 && !adresse.startsWith(u'@') && !adresse.endsWith(u'@')
           && !adresse.contains(QLatin1String("=?")) // an encoded word, which a mail program would read as other text
           && std::ranges::none_of(adresse, interdite);
}

QString sansLien(const QString &texte)
{
    const QLatin1String lien("mailto:");
    if (!texte.startsWith(lien, Qt::CaseInsensitive))
        return texte;
    const QString encodee = texte.sliced(lien.size()).section(u'?', 0, 0);
    return QUrl::fromPercentEncoding(encodee.toUtf8()).trimmed();
}

} // namespace

QString AdresseMail::dans(const QString &texte)
{
    QString nom;
    QString adresse = texte.trimmed();
    if (const qsizetype chevron = adresse.indexOf(u'<'); chevron >= 0 && adresse.endsWith(u'>')) {
        nom = adresse.first(chevron).remove(u'"').trimmed();
        adresse = adresse.sliced(chevron + 1).chopped(1).trimmed();
    }
    adresse = sansLien(adresse);
    const bool uneAutre = nom.contains(u'@') && nom != adresse;
    return estSeule(adresse) && !uneAutre ? adresse : QString();
}

} // namespace Quillet
