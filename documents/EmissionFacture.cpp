#include "documents/EmissionFacture.h"

namespace Quillet {

QString EmissionFacture::numeroPour(const QString &champ, Vendeur vendeur, QDate jour)
{
    const bool aJour = NumerotationFactures::rapport(champ, jour) == NumerotationFactures::Rapport::dansLaSerie;
    if (champ != propose_ || (aJour && champ == memoire_.partie()))
        return champ;
    try {
        propose_ = numerotation_.prochain(vendeur, jour);
        sansProposition_.clear();
    } catch (const ErreurStockage &erreur) {
        propose_ = QString();
        sansProposition_ = QStringLiteral("Le dernier numéro n’a pas pu être lu.\n%1").arg(erreur.texte());
    }
    return *propose_;
}

void EmissionFacture::noter(const QString &champ)
{
    if (champ != propose_)
        propose_.reset();
}

PlaceDuNumero EmissionFacture::place(const QString &numero, Vendeur vendeur, QDate jour) const
{
    PlaceDuNumero place;
    place.reparti = numero == memoire_.partie();
    place.dejaParti = !place.reparti && memoire_.estPartie(numero, vendeur);
    try {
        place.dernier = numerotation_.dernier(vendeur);
        place.suivant = numerotation_.prochain(vendeur, jour);
    } catch (const ErreurStockage &) { // `sansProposition` has said so
    }
    return place;
}

bool EmissionFacture::emettre(const Facture &facture, Vendeur vendeur,
                              const std::function<bool(const Facture &)> &sortir)
{
    if (!sortir(facture))
        return false;
    memoire_.noterDepart(facture.numero, vendeur);
    try {
        numerotation_.retenir(facture.numero, vendeur);
    } catch (const ErreurStockage &erreur) {
        throw Echec(QStringLiteral("La facture %1 est partie, mais son numéro n’a pas été retenu.\n%2")
                        .arg(facture.numero, erreur.texte()));
    }
    return true;
}

} // namespace Quillet
