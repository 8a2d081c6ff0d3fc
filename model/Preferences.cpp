#include "model/Preferences.h"

#include <QDir>
#include <QFileInfo>
#include <QMap>
#include <QStandardPaths>
#include <QUtf8StringView>

#include <algorithm>
#include <optional>

namespace Quillet {

namespace {

using Valeurs = QMap<QString, QString>;

const QString entete = QStringLiteral("[General]");
// Stands first, and tells how many texts follow: whole lines can be cut off. Files of before it announce none.
const QString cleDuNombre = QStringLiteral("textes");
// Names the copy of a file that was damaged, for as long as texts are missed.
const QString cleDeLaCopie = QStringLiteral("illisible");

bool estUnSigneDeCommande(QChar signe)
{
    return signe.category() == QChar::Other_Control;
}

// None when anything is no line of ours: a file that was cut or overwritten must not pass for one without numbers. What
// other programs put around lines and texts means nothing.
std::optional<Valeurs> decoder(QByteArray octets)
{
    if (octets.startsWith("\xEF\xBB\xBF"))
        octets = octets.sliced(3);
    if (!octets.endsWith('\n') || !QUtf8StringView(octets).isValidUtf8())
        return std::nullopt;
    Valeurs valeurs;
    for (const QString &brute : QString::fromUtf8(octets).split(u'\n')) {
        const QString ligne = brute.trimmed();
        if (ligne.isEmpty() || ligne == entete)
            continue;
        const QString cle = ligne.section(u'=', 0, 0).trimmed();
        const QString valeur = ligne.section(u'=', 1).trimmed();
        if (!ligne.contains(u'=') || cle.isEmpty() || valeurs.contains(cle)
            || std::ranges::any_of(cle + valeur, estUnSigneDeCommande))
            return std::nullopt;
        valeurs.insert(cle, valeur);
    }
    const qint64 annonces = valeurs.take(cleDuNombre).toLongLong();
    const bool entier = !valeurs.isEmpty() && valeurs.size() >= annonces; // without any, none is ever written
    return entier ? std::optional(valeurs) : std::nullopt;
}

QByteArray encoder(const Valeurs &valeurs)
{
    QString texte = QStringLiteral("%1\n%2=%3\n").arg(entete, cleDuNombre, QString::number(valeurs.size()));
    for (const auto &[cle, valeur] : valeurs.asKeyValueRange()) {
        QString propre = valeur;
        std::ranges::replace_if(propre, estUnSigneDeCommande, u' ');
        texte += cle + u'=' + propre + u'\n';
    }
    return texte.toUtf8();
}

// Of the file that is to be replaced: its texts, or else the name of its copy.
Valeurs aGarder(const QString &fichier)
{
    if (Fichier::excede(fichier, Fichier::Borne::preferences))
        return {{cleDeLaCopie, Fichier::doubler(fichier)}};
    const auto octets = Fichier::lireOuRefuser(fichier, Fichier::Borne::preferences);
    if (!octets)
        return {};
    const auto valeurs = decoder(*octets);
    return valeurs ? *valeurs : Valeurs{{cleDeLaCopie, Fichier::mettreDeCote(fichier, *octets)}};
}

} // namespace

Preferences Preferences::deLUtilisateur()
{
    const QDir configuration(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
    return Preferences(configuration.filePath(QStringLiteral("Quillet/Quillet.ini")));
}

QString Preferences::texte(const QString &cle) const
{
    const auto octets = Fichier::lire(fichier_, Fichier::Borne::preferences);
    return octets ? decoder(*octets).value_or(Valeurs()).value(cle) : QString();
}

Preferences::Trouvee Preferences::chercher(const QString &cle) const
{
    const auto octets = Fichier::lireOuRefuser(fichier_, Fichier::Borne::preferences);
    if (!octets)
        return {};
    const auto valeurs = decoder(*octets);
    if (!valeurs)
        return {{}, ErreurStockage(fichier_, QStringLiteral("le fichier est incomplet ou abîmé"))};
    if (!valeurs->contains(cle) && valeurs->contains(cleDeLaCopie))
        return {{},
                ErreurStockage(fichier_, QStringLiteral("le fichier était incomplet ou abîmé ; il est gardé sous le "
                                                        "nom %1")
                                             .arg(valeurs->value(cleDeLaCopie)))};
    return {valeurs->value(cle), {}};
}

void Preferences::ecrire(const QString &cle, const QString &texte)
{
    Fichier::creerDossier(QFileInfo(fichier_).absolutePath());
    Valeurs valeurs = aGarder(fichier_);
    valeurs.insert(cle, texte);
    Fichier::ecrire(fichier_, encoder(valeurs));
}

} // namespace Quillet
