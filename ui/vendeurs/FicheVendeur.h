#pragma once

#include "composants/Formulaire.h"
#include "model/Vendeur.h"
#include "ui/vendeurs/ChampsDeReglages.h"

class QPushButton;

namespace Quillet {

// Who one seller is: what the documents say of them, and what the screens call them.
class FicheVendeur : public Formulaire::Section
{
    Q_OBJECT

public:
    FicheVendeur(const QString &titre, Vendeur vendeur, const EcritureDesReglages &ecriture, QWidget *parent = nullptr);

    void montrer();
    void conclure() { champs_.conclure(); }
    [[nodiscard]] ChampDeFiche *enSuspens() const { return champs_.enSuspens(); }
    // The first field that is wrong; null when none is.
    [[nodiscard]] ChampDeFiche *objecter(const Objections::ParChamp &objections) const
    {
        return champs_.objecter(objections);
    }
    void prendreLeFocus();

private:
    void proposerLEori();

    Vendeur vendeur_;
    ChampsDeReglages champs_;
    ChampDeFiche *nom_ = nullptr;
    ChampDeFiche *eori_ = nullptr;
    QPushButton *proposerLEori_;
};

} // namespace Quillet
