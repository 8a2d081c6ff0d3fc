#include "model/Commande.h"

#include <algorithm>

template <typename T>
bool Commande::remplacer(T &champ, const T &valeur)
{
    if (champ == valeur)
        return false;
    champ = valeur;
    return true;
}

template <typename T>
void Commande::changer(T &champ, const T &valeur)
{
    if (remplacer(champ, valeur))
        emit change();
}

bool Commande::estVide() const
{
    return std::ranges::none_of(quantites_, [](int quantite) { return quantite > 0; });
}

void Commande::setVendeur(Vendeur vendeur)
{
    changer(vendeur_, vendeur);
}

void Commande::setEmballage(const QString &nom)
{
    changer(emballage_, nom);
}

void Commande::setPoidsEmballageLibre(Grammes poids)
{
    changer(poidsEmballageLibre_, poids);
}

void Commande::setPoidsPese(std::optional<Grammes> poids)
{
    changer(poidsPese_, poids);
}

void Commande::setCodeDestination(const QString &code)
{
    if (!remplacer(codeDestination_, code))
        return;
    horsUE_ = false;
    paysLivraison_.clear();
    langue_.reset();
    emit change();
}

void Commande::setHorsUE(bool horsUE)
{
    changer(horsUE_, horsUE);
}

void Commande::setPaysLivraison(const QString &pays)
{
    changer(paysLivraison_, pays);
}

void Commande::setLangue(std::optional<Langue> langue)
{
    changer(langue_, langue);
}

void Commande::ajuster(const Livre &livre, int delta)
{
    const auto voulue = qint64{quantite(livre)} + delta;
    auto quantites = quantites_;
    quantites[livre.id] = static_cast<int>(std::clamp<qint64>(voulue, 0, quantiteMaximale));
    changer(quantites_, quantites);
}

void Commande::vider()
{
    bool modifiee = remplacer(quantites_, {});
    modifiee |= remplacer(poidsPese_, {});
    modifiee |= remplacer(horsUE_, false);
    modifiee |= remplacer(paysLivraison_, {});
    modifiee |= remplacer(langue_, {});
    if (modifiee)
        emit change();
}
