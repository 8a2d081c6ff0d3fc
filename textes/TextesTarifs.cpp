#include "textes/TextesTarifs.h"

#include "model/Format.h"
#include "textes/TextesFrais.h"

#include <set>

namespace Quillet {

namespace {

using TextesTarifs::Famille;
using TextesTarifs::Palier;
using TextesTarifs::Prix;

QString titre(FamilleTarifs famille)
{
    switch (famille) {
    case FamilleTarifs::france:
        return QStringLiteral("France métropolitaine, Monaco, Andorre");
    case FamilleTarifs::outreMer:
        return QStringLiteral("Outre-mer");
    case FamilleTarifs::europe:
        return QStringLiteral("Europe");
    case FamilleTarifs::monde:
        return QStringLiteral("Monde");
    }
    Q_UNREACHABLE();
}

Prix prix(const GrilleColissimo &grille, Grammes jusqua, const std::optional<Calcul> &commande)
{
    const auto palier = std::ranges::find(grille.paliers, jusqua, &Quillet::Palier::jusqua);
    if (palier == grille.paliers.end())
        return {Format::absent};
    // A schedule to come may cut its tiers otherwise: what counts is the parcel.
    const bool enCours = commande && commande->palier && commande->grille->code == grille.code
                         && grille.palier(commande->poidsRetenu) == *palier;
    return {Format::euros(palier->prix), enCours};
}

Famille tableau(const QString &titre, const QList<GrilleColissimo> &grilles, const std::optional<Calcul> &commande)
{
    Famille famille{titre, {}, {}, {}};
    std::set<Grammes> poids;
    for (const GrilleColissimo &grille : grilles) {
        famille.zones.append(grille.nomCourt);
        if (const auto pays = grille.pays())
            famille.pays.append(grille.nomCourt + QStringLiteral(" : ") + *pays);
        for (const Quillet::Palier &palier : grille.paliers)
            poids.insert(palier.jusqua);
    }
    for (const Grammes jusqua : poids) {
        Palier palier{Format::jusqua(jusqua), {}};
        for (const GrilleColissimo &grille : grilles)
            palier.prix.append(prix(grille, jusqua, commande));
        famille.paliers.append(palier);
    }
    return famille;
}

} // namespace

QString TextesTarifs::enVigueur(const TarifsColissimo &tarifs)
{
    return QStringLiteral("en vigueur au ") + Format::date(tarifs.validite);
}

QString TextesTarifs::aPartirDu(const TarifsColissimo &tarifs)
{
    return QStringLiteral("À partir du ") + Format::date(tarifs.validite);
}

QList<Famille> TextesTarifs::familles(const TarifsColissimo &tarifs, const std::optional<Calcul> &commande)
{
    QList<Famille> familles;
    for (const FamilleTarifs famille : tous<FamilleTarifs>) {
        QList<GrilleColissimo> grilles;
        for (const GrilleColissimo &grille : tarifs.grilles)
            if (grille.famille == famille)
                grilles.append(grille);
        if (!grilles.isEmpty())
            familles.append(tableau(titre(famille), grilles, commande));
    }
    return familles;
}

QList<TextesTarifs::Frais> TextesTarifs::frais(const FraisPaypal &frais)
{
    QList<Frais> lignes{{QStringLiteral("Taux de base"), Format::pourcentage(frais.taux)},
                        {QStringLiteral("Part fixe"), Format::euros(frais.fixe)}};
    for (const RegionPaypal region : tous<RegionPaypal>)
        lignes.append({TextesFrais::region(region), frais.supplements.contains(region)
                                                        ? Format::pourcentage(frais.supplement(region))
                                                        : QString(Format::absent)});
    return lignes;
}

} // namespace Quillet
