#include "model/Preferences.h"

#include "model/SigneDeCommande.h"

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

struct Lues
{
    Valeurs valeurs;
    bool entieres = true; // no line was lost
};

// Nothing, when anything is no line of ours: a file that was cut or overwritten must not pass for one without numbers.
// What other programs put around lines and texts means nothing.
Lues decoder(QByteArray octets)
{
    const Lues perdues{{}, false};
    if (octets.startsWith("\xEF\xBB\xBF"))
        octets = octets.sliced(3);
    if (!octets.endsWith('\n') || !QUtf8StringView(octets).isValidUtf8())
        return perdues;
    Valeurs valeurs;
    for (const QString &brute : QString::fromUtf8(octets).split(u'\n')) {
        const QString ligne = brute.trimmed();
        if (ligne.isEmpty() || ligne == entete)
            continue;
        const QString cle = ligne.section(u'=', 0, 0).trimmed();
        const QString valeur = ligne.section(u'=', 1).trimmed();
        if (!ligne.contains(u'=') || cle.isEmpty() || valeurs.contains(cle)
            || std::ranges::any_of(cle + valeur, estUnSigneDeCommande))
            return perdues;
        valeurs.insert(cle, valeur);
    }
    const bool comptees = valeurs.contains(cleDuNombre);
    const qint64 annonces = valeurs.take(cleDuNombre).toLongLong();
    if (valeurs.isEmpty()) // none is ever written so
        return perdues;
    return {valeurs, !comptees || (annonces > 0 && valeurs.size() >= annonces)};
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

// Of the file that is to be replaced: its texts and, when some were lost, the name of its copy.
Valeurs aGarder(const QString &fichier)
{
    if (Fichier::excede(fichier, Fichier::Borne::preferences))
        return {{cleDeLaCopie, Fichier::doubler(fichier)}};
    const auto octets = Fichier::lireOuRefuser(fichier, Fichier::Borne::preferences);
    if (!octets)
        return {};
    Lues lues = decoder(*octets);
    if (!lues.entieres)
        lues.valeurs.insert(cleDeLaCopie, Fichier::mettreDeCote(fichier, *octets));
    return lues.valeurs;
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
    return octets ? decoder(*octets).valeurs.value(cle) : QString();
}

Preferences::Trouvee Preferences::chercher(const QString &cle) const
{
    const ErreurStockage abime(fichier_, QStringLiteral("le fichier est incomplet ou abîmé"));
    if (Fichier::excede(fichier_, Fichier::Borne::preferences))
        return {{}, abime};
    const auto octets = Fichier::lireOuRefuser(fichier_, Fichier::Borne::preferences);
    if (!octets)
        return {};
    const Lues lues = decoder(*octets);
    if (lues.valeurs.contains(cle))
        return {lues.valeurs.value(cle), {}};
    if (!lues.entieres)
        return {{}, abime};
    if (lues.valeurs.contains(cleDeLaCopie))
        return {{},
                ErreurStockage(fichier_, QStringLiteral("le fichier était incomplet ou abîmé ; il est gardé sous le "
                                                        "nom %1")
                                             .arg(lues.valeurs.value(cleDeLaCopie)))};
    return {};
}

void Preferences::ecrire(const QString &cle, const QString &texte)
{
    Fichier::creerDossier(QFileInfo(fichier_).absolutePath());
    Valeurs valeurs = aGarder(fichier_);
    valeurs.insert(cle, texte);
    Fichier::ecrire(fichier_, encoder(valeurs));
}

void Preferences::retenirSiPossible(const QString &cle, const QString &texte)
{
    try {
        const Trouvee trouvee = chercher(cle);
        if (!trouvee.perte && trouvee.texte != texte)
            ecrire(cle, texte);
    } catch (const ErreurStockage &) {
        return; // what matters more is written later, and says so when it fails
    }
}

} // namespace Quillet
