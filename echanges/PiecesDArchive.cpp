#include "echanges/PiecesDArchive.h"

#include "model/Couvertures.h"
#include "model/Fichier.h"
#include "model/SigneDeCommande.h"
#include "model/Stockage.h"

#include <QFileInfo>

#include <algorithm>

namespace Quillet {

namespace {

bool estDesDonnees(const QString &fichier)
{
    const QStringList noms{QStringLiteral("livres.json"), QStringLiteral("reglages.json"),
                           QStringLiteral("destinations.json"), QStringLiteral("pays.json")};
    return noms.contains(fichier) || PiecesDArchive::estUnTarif(fichier);
}

} // namespace

std::optional<qint64> PiecesDArchive::borne(const QString &nom)
{
    if (nom == manifeste || nom == series)
        return Fichier::Borne::preferences;
    if (nom.startsWith(couvertures))
        return estUneCouverture(nom.sliced(couvertures.size())) ? std::optional(Fichier::Borne::image) : std::nullopt;
    const bool json = nom.startsWith(propres) ? estDesDonnees(nom.sliced(propres.size()))
                                              : estUnTarif(nom) || nom == Stockage::fichierDesFrais()
                                                    || nom == Stockage::fichierDesLivres();
    return json ? std::optional(Fichier::Borne::donnees) : std::nullopt;
}

bool PiecesDArchive::estUnTarif(const QString &fichier)
{
    const QStringList bouts = TarifsColissimo::motifDeFichier().split(u'*');
    return !fichier.contains(u'/') && fichier.startsWith(bouts.first()) && fichier.endsWith(bouts.last());
}

bool PiecesDArchive::estUneCouverture(const QString &fichier)
{
    constexpr qsizetype octetsAuPlus = 200;
    return !fichier.startsWith(u'.') && !fichier.contains(u'/') && !sEchappe(fichier)
           && fichier.toUtf8().size() <= octetsAuPlus
           && Couvertures::formats().contains(QFileInfo(fichier).suffix().toLower());
}

bool PiecesDArchive::sEchappe(const QString &nom)
{
    const QStringList etapes = nom.split(u'/');
    return nom.startsWith(u'/') || nom.contains(u'\\') || etapes.contains(QStringLiteral(".."))
           || std::ranges::any_of(nom, estUnSigneDeCommande);
}

} // namespace Quillet
