#include "textes/TextesRecapitulatif.h"

#include "documents/ReponseType.h"
#include "model/Format.h"
#include "textes/NomsVendeurs.h"
#include "textes/TextesFrais.h"
#include "textes/TextesPays.h"

#include <algorithm>

namespace Quillet {

namespace {

const QString triangle = QStringLiteral("exclamationmark.triangle");
const QString balance = QStringLiteral("scalemass");

} // namespace

QString TextesRecapitulatif::sousTitre(const Calcul &calcul)
{
    const int nombre = calcul.nombreDeLivres();
    if (nombre == 0)
        return QStringLiteral("Aucun livre");
    const QString livres =
        nombre == 1 ? QStringLiteral("1 livre · ") : QString::number(nombre) + QStringLiteral(" livres · ");
    return livres + Format::poids(calcul.poidsRetenu);
}

QString TextesRecapitulatif::resume(const Calcul &calcul, bool videe)
{
    if (videe)
        return QStringLiteral("%1. Ctrl+Z rétablit la commande.").arg(sousTitre(calcul));
    if (calcul.nombreDeLivres() == 0)
        return sousTitre(calcul);
    return QStringLiteral("%1, total à payer : %2").arg(sousTitre(calcul), Format::dit(Format::euros(calcul.total)));
}

QList<TextesRecapitulatif::Ligne> TextesRecapitulatif::livres(const Calcul &calcul)
{
    QList<Ligne> lignes;
    for (const Calcul::Ligne &ligne : calcul.lignes)
        lignes.append({ligne.livre.titre,
                       QString::number(ligne.quantite) + QStringLiteral(" × ") + Format::euros(ligne.livre.prix),
                       Format::euros(ligne.montant())});
    return lignes;
}

QString TextesRecapitulatif::autresLivres(const Donnees &donnees, const BonDeCommande &bon)
{
    QStringList phrases;
    for (const Vendeur vendeur : tous<Vendeur>) {
        int nombre = 0;
        for (const Livre &livre : donnees.livres)
            if (livre.vendeur == vendeur && vendeur != bon.vendeur)
                nombre += bon.quantite(livre);
        if (nombre == 0)
            continue;
        const auto phrase = nombre == 1
                                ? QStringLiteral("%1 livre de %2 reste aussi dans la commande ; il ne compte pas ici.")
                                : QStringLiteral("%1 livres de %2 restent aussi dans la commande ; ils ne comptent "
                                                 "pas ici.");
        phrases.append(phrase.arg(nombre).arg(NomsVendeurs::court(vendeur, donnees)));
    }
    return phrases.join(u' ');
}

QString TextesRecapitulatif::emballage(const Emballage &emballage)
{
    return emballage.nom + QStringLiteral(" (") + Format::poids(emballage.poids) + u')';
}

std::optional<TextesRecapitulatif::Ligne> TextesRecapitulatif::palier(const Calcul &calcul)
{
    if (!calcul.palier)
        return std::nullopt;
    const Grammes jusqua = calcul.palier->jusqua;
    return Ligne{QStringLiteral("Palier Colissimo"),
                 QStringLiteral("encore %1 avant le palier suivant").arg(Format::poids(jusqua - calcul.poidsRetenu)),
                 Format::jusqua(jusqua)};
}

QString TextesRecapitulatif::dernierPalier(const Calcul &calcul)
{
    if (!calcul.palier || *calcul.palier != calcul.grille->paliers.last())
        return {};
    return QStringLiteral("C’est le dernier palier de la grille : au-delà, il faut faire deux colis.");
}

QList<TextesRecapitulatif::Avertissement> TextesRecapitulatif::avertissementsDePesee(const Calcul &calcul)
{
    QList<Avertissement> avertissements;
    if (calcul.poidsPese && *calcul.poidsPese < calcul.poidsLivres)
        avertissements.append({triangle, QStringLiteral("Le colis pesé est plus léger que les livres seuls (%1) : "
                                                        "vérifiez la pesée.")
                                             .arg(Format::poids(calcul.poidsLivres))});
    if (!calcul.poidsPese)
        for (const Livre &livre : calcul.livresNonPeses)
            avertissements.append(
                {balance, livre.titre + QStringLiteral(" n’a pas encore été pesé : pesez le colis.")});
    if (calcul.depasseLaGrille())
        avertissements.append(
            {triangle, QStringLiteral("Au-delà de %1, le dernier palier de la grille : faire deux colis.")
                           .arg(Format::palier(calcul.grille->paliers.last().jusqua))});
    return avertissements;
}

QString TextesRecapitulatif::destinationComplete(const Calcul &calcul)
{
    const auto &destination = calcul.destination;
    return destination && destination->libelleFr != destination->libelleCourt ? destination->libelleFr : QString();
}

QString TextesRecapitulatif::declaration(const Calcul &calcul)
{
    return calcul.douaneRequise ? QStringLiteral("Oui, CN23") : QStringLiteral("Non");
}

QString TextesRecapitulatif::detailEnvoi(const Calcul &calcul)
{
    if (!calcul.grille || !calcul.palier)
        return {};
    return calcul.grille->nomCourt + QStringLiteral(", ") + Format::jusqua(calcul.palier->jusqua);
}

QString TextesRecapitulatif::detailFrais(const Calcul &calcul, const FraisPaypal &frais)
{
    if (!calcul.regionPaypal)
        return {};
    const RegionPaypal region = *calcul.regionPaypal;
    return TextesFrais::formule(frais.taux + frais.supplement(region), frais.fixe) + QStringLiteral(" · ")
           + TextesFrais::region(region);
}

QString TextesRecapitulatif::perte(const Calcul &calcul)
{
    if (!calcul.reste || *calcul.reste >= Centimes{})
        return {};
    return QStringLiteral("Commande à perte : les frais PayPal dépassent le prix des livres.");
}

std::optional<TextesRecapitulatif::LienDePaiement>
TextesRecapitulatif::lienDePaiement(const Calcul &calcul, const Donnees &donnees, const BonDeCommande &bon)
{
    const auto message = ReponseType::de(calcul, donnees.reglages, bon);
    if (!message || !calcul.total)
        return std::nullopt;
    const TraitsDeLangue langue = traits(message->langue);
    const QString propose = calcul.destination ? calcul.destination->libelleCourtEnLangue(message->langue) : QString();
    return LienDePaiement{
        .nomDeLObjet = message->nomDeLObjet(),
        .description = message->descriptionDuLien(),
        .prix = Format::montant(*calcul.total),
        .prixAffiche = Format::euros(calcul.total),
        .retour = message->vendeur.retourPaypal,
        .indicationDuPays = QStringLiteral("en %1, %2").arg(langue.nom, langue.formeDuPays),
        .paysPropose = propose,
        .zoneDite = bon.paysLivraison.trimmed().isEmpty() ? TextesPays::zone(propose, donnees.pays) : QString(),
    };
}

QString TextesRecapitulatif::libelleDeLaReponse(Langue langue)
{
    return QStringLiteral("E-mail en %1").arg(traits(langue).nom);
}

QString TextesRecapitulatif::creationDuLien()
{
    return QStringLiteral("Créer le lien dans PayPal");
}

QString TextesRecapitulatif::tourDeCopie(const Suivi &suivi, const QList<TexteACopier> &textes)
{
    const TexteACopier &suivant = textes[suivi.aCopier(textes)];
    const auto dernier = std::ranges::find(textes, suivi.dernierCopie(), &TexteACopier::titre);
    if (dernier == textes.end() || !suivi.estCopie(*dernier))
        return QStringLiteral("À copier : %1").arg(suivant.titre);
    return QStringLiteral("Copié : %1. %2")
        .arg(dernier->titre, suivi.estCopie(suivant) ? QStringLiteral("Tout est copié.")
                                                     : QStringLiteral("Ensuite : %1").arg(suivant.titre));
}

QString TextesRecapitulatif::colis(const Calcul &calcul)
{
    const QString vers = QStringLiteral("Envoi : %1")
                             .arg(calcul.destination ? calcul.destination->libelleCourt : QString(Format::absent));
    if (calcul.lignes.isEmpty())
        return vers;
    const QString poids = calcul.poidsConnu() ? Format::poids(calcul.poidsRetenu) : QStringLiteral("colis à peser");
    return QStringLiteral("%1 · %2").arg(vers, poids);
}

TextesRecapitulatif::EtapeSuivante TextesRecapitulatif::etapeSuivante(Etape etape, const Calcul &calcul, Langue langue)
{
    const bool pret = calcul.pretAPartir();
    switch (etape) {
    case Etape::lien:
        return {QStringLiteral("arrow.up.forward.app"), creationDuLien(), true, pret};
    case Etape::reponse:
        return {QStringLiteral("envelope"), libelleDeLaReponse(langue), pret, pret};
    case Etape::facture:
        return {QStringLiteral("doc.plaintext"), QStringLiteral("Facture"), pret, pret};
    }
    Q_UNREACHABLE();
}

} // namespace Quillet
