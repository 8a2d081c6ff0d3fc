#include "echanges/DepotCouvertures.h"

#include "echanges/NomDeFichier.h"
#include "model/Couvertures.h"
#include "model/Fichier.h"

#include <QCryptographicHash>
#include <QRegularExpression>
#include <QSet>

namespace Quillet {

namespace {

constexpr int joursDeGarde = 30;

QString empreinte(const QByteArray &octets)
{
    return QString::fromLatin1(QCryptographicHash::hash(octets, QCryptographicHash::Sha256).toHex().first(8));
}

// By its name, and by its bytes: a name can be anybody's.
bool estDeposee(const QFileInfo &fichier)
{
    static const QRegularExpression motif(QStringLiteral("\\A[a-z0-9-]+-([0-9a-f]{8})\\.(?:jpg|png)\\z"));
    const auto lu = motif.match(fichier.fileName());
    if (!lu.hasMatch())
        return false;
    const auto octets = Fichier::lire(fichier.filePath(), Fichier::Borne::image);
    return octets && empreinte(*octets) == lu.captured(1);
}

} // namespace

QString Couvertures::nomDuDepot(const QString &titre, const CouverturePrete &couverture)
{
    return QStringLiteral("%1-%2.%3").arg(NomDeFichier::de(titre), empreinte(couverture.octets), couverture.extension);
}

QString Couvertures::deposer(const QDir &dossier, const QString &titre, const CouverturePrete &couverture)
{
    const QString nom = nomDuDepot(titre, couverture);
    const QString chemin = dossier.filePath(nom);
    Fichier::creerDossier(dossier.absolutePath());
    if (Fichier::lire(chemin, Fichier::Borne::image) != couverture.octets)
        Fichier::ecrire(chemin, couverture.octets);
    return nom;
}

void Couvertures::elaguer(const QDir &dossier, const QList<Livre> &livres, const QDateTime &maintenant)
{
    QSet<QString> nommees;
    for (const Livre &livre : livres)
        nommees.insert(nom(livre.couverture));
    for (const QFileInfo &fichier : dossier.entryInfoList(QDir::Files))
        if (!nommees.contains(nom(fichier.fileName())) && fichier.lastModified().daysTo(maintenant) > joursDeGarde
            && estDeposee(fichier))
            QFile::remove(fichier.filePath());
}

} // namespace Quillet
