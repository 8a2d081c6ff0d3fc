#pragma once

#include "model/BonDeCommande.h"

#include <QObject>

namespace Quillet {

// The one order being prepared: holds it, and tells when it changed.
class Commande : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    [[nodiscard]] const BonDeCommande &bon() const { return bon_; }

    void setVendeur(Vendeur vendeur) { remplacer(&BonDeCommande::vendeur, vendeur); }
    void setEmballage(const QString &nom) { remplacer(&BonDeCommande::emballage, nom); }
    void setPoidsEmballageLibre(Grammes poids) { remplacer(&BonDeCommande::poidsEmballageLibre, poids); }
    void setPoidsPese(std::optional<Grammes> poids) { remplacer(&BonDeCommande::poidsPese, poids); }
    void setHorsUE(bool horsUE) { remplacer(&BonDeCommande::horsUE, horsUE); }
    void setPaysLivraison(const QString &pays) { remplacer(&BonDeCommande::paysLivraison, pays); }
    void setLangue(std::optional<Langue> langue) { remplacer(&BonDeCommande::langue, langue); }
    // See BonDeCommande.
    void setCodeDestination(const CodeDestination &code);
    void ajuster(const Livre &livre, int delta);
    void vider();
    // Takes another order, whole.
    void adopter(const BonDeCommande &bon);

    // Whether `rendre` gives back what `vider` took: until the next change.
    [[nodiscard]] bool peutRendre() const { return videe_.has_value(); }
    void rendre();
    // Starts anew, for another buyer, with what the data say; what was emptied cannot be had back.
    void commencer(const Donnees &donnees);
    // After the sellers' own data have changed; see BonDeCommande.
    void suivre(const Donnees &donnees);

signals:
    void change();

private:
    template <typename T>
    void remplacer(T BonDeCommande::*champ, const T &valeur)
    {
        BonDeCommande bon = bon_;
        bon.*champ = valeur;
        adopter(bon);
    }
    void passerA(const BonDeCommande &bon, const std::optional<BonDeCommande> &videe);

    BonDeCommande bon_;
    std::optional<BonDeCommande> videe_; // what the last change took away, when it was `vider`
};

} // namespace Quillet
