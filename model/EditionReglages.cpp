#include "model/EditionReglages.h"

#include "model/BonDeCommande.h"

#include <algorithm>

namespace Quillet {

namespace {

bool existe(const Reglages &reglages, const QString &nom)
{
    return std::ranges::find(reglages.emballages, nom, &Emballage::nom) != reglages.emballages.end();
}

} // namespace

Reglages EditionReglages::premiers(Reglages exemple)
{
    exemple.vendeurs = {
        {tous<Vendeur>.front(), {.mentionTva = QStringLiteral("TVA non applicable, art. 293 B du CGI")}}};
    exemple.emballageDeDepart = BonDeCommande::emballageDeDepart(exemple);
    return exemple;
}

Reglages EditionReglages::avecEmballage(Reglages reglages)
{
    const QString nom = QStringLiteral("Nouvel emballage");
    QString libre = nom;
    for (int numero = 2; existe(reglages, libre); ++numero)
        libre = QStringLiteral("%1 %2").arg(nom).arg(numero);
    reglages.emballages.append({libre, Grammes{50}});
    return reglages;
}

Reglages EditionReglages::sansEmballage(Reglages reglages, qsizetype rang)
{
    const bool deDepart = reglages.emballages[rang].nom == BonDeCommande::emballageDeDepart(reglages);
    reglages.emballages.removeAt(rang);
    if (deDepart)
        reglages.emballageDeDepart =
            reglages.emballages.isEmpty() ? BonDeCommande::autrePoids() : reglages.emballages.first().nom;
    return reglages;
}

Reglages EditionReglages::emballageDeplace(Reglages reglages, qsizetype rang, qsizetype pas)
{
    reglages.emballages.move(rang, std::clamp<qsizetype>(rang + pas, 0, reglages.emballages.size() - 1));
    return reglages;
}

Reglages EditionReglages::emballageRenomme(Reglages reglages, qsizetype rang, const QString &nom)
{
    Emballage &emballage = reglages.emballages[rang];
    if (emballage.nom == BonDeCommande::emballageDeDepart(reglages))
        reglages.emballageDeDepart = nom;
    emballage.nom = nom;
    return reglages;
}

QString EditionReglages::nomApres(const QString &nom, const QList<Emballage> &avant, const QList<Emballage> &apres)
{
    const auto ancien = std::ranges::find(avant, nom, &Emballage::nom);
    const bool renomme = nom != BonDeCommande::autrePoids() && ancien != avant.end() && avant.size() == apres.size()
                         && std::ranges::find(apres, nom, &Emballage::nom) == apres.end();
    return renomme ? apres[ancien - avant.begin()].nom : nom;
}

Reglages EditionReglages::avecVendeur(Reglages reglages, Vendeur vendeur)
{
    IdentiteVendeur nouveau;
    if (!reglages.vendeurs.isEmpty())
        nouveau.mentionTva = reglages.vendeurs.first().mentionTva;
    reglages.vendeurs.insert(vendeur, nouveau);
    return reglages;
}

} // namespace Quillet
