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
constexpr qsizetype chiffres = 8;
constexpr qsizetype chiffresAuPlus = 64; // a picture's whole print

QString empreinte(const QByteArray &octets)
{
    return QString::fromLatin1(QCryptographicHash::hash(octets, QCryptographicHash::Sha256).toHex());
}

// By its name, and by its bytes: a name can be anybody's.
bool estDeposee(const QFileInfo &fichier)
{
    static const QRegularExpression motif(QStringLiteral("\\A[a-z0-9-]+-([0-9a-f]{8,64})\\.(?:jpg|png)\\z"));
    const auto lu = motif.match(fichier.fileName());
    if (!lu.hasMatch())
        return false;
    const auto octets = Fichier::lire(fichier.filePath(), Fichier::Borne::image);
    return octets && empreinte(*octets).startsWith(lu.captured(1));
}

QString nommee(const QString &titre, const CouverturePrete &couverture, qsizetype nombre)
{
    return QStringLiteral("%1-%2.%3")
        .arg(NomDeFichier::de(titre), empreinte(couverture.octets).first(nombre), couverture.extension);
}

} // namespace

QString Couvertures::nomDuDepot(const QString &titre, const CouverturePrete &couverture)
{
    return nommee(titre, couverture, chiffres);
}

QString Couvertures::deposer(const QDir &dossier, const QString &titre, const CouverturePrete &couverture)
{
    Fichier::creerDossier(dossier.absolutePath());
    for (qsizetype nombre = chiffres; nombre <= chiffresAuPlus; nombre *= 2) {
        const QString nom = nommee(titre, couverture, nombre);
        const QString chemin = dossier.filePath(nom);
        if (!Fichier::existe(chemin))
            Fichier::ecrire(chemin, couverture.octets);
        if (Fichier::lire(chemin, Fichier::Borne::image) == couverture.octets)
            return nom;
    }
    throw ErreurStockage(dossier.filePath(nomDuDepot(titre, couverture)),
                         QStringLiteral("une autre image a déjà ce nom"));
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
