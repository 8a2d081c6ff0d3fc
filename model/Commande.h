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
    // After the sellers' own data have changed: what is gone leaves the order (see BonDeCommande), its packaging keeps
    // its place under another name. A book that comes back just as it left, by undoing, has its copies again, as long
    // as nobody touched them or began another order.
    void suivre(const Donnees &avant, const Donnees &apres);

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
    struct Parti
    {
        Livre livre;
        int copies;
    };
    QList<Parti> partis_;       // with the data, out of the order
    QMap<qint64, int> restees_; // what they left of it
};

} // namespace Quillet
