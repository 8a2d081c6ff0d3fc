#pragma once

#include "model/Calcul.h"
#include "ui/commande/RangeeMontant.h"

namespace Quillet {

class Alerte;
class LigneDuTotal;

// Postage, total, PayPal's fee and what remains.
class SectionMontants : public Formulaire::Section
{
    Q_OBJECT

public:
    // `reglages` is read each time the section is brought up to date.
    explicit SectionMontants(const Reglages &reglages, QWidget *parent = nullptr);
    void montrer(const Calcul &calcul);

private:
    const Reglages &reglages_;
    RangeeMontant envoi_;
    LigneDuTotal *total_;
    RangeeMontant frais_;
    RangeeMontant reste_;
    Alerte *perte_;
};

} // namespace Quillet
