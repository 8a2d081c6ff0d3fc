#pragma once

#include "model/Calcul.h"
#include "ui/commande/RangeeMontant.h"

namespace Quillet {

class Libelle;

// The books of the order and their sub-total.
class SectionLivres : public Formulaire::Section
{
    Q_OBJECT

public:
    explicit SectionLivres(QWidget *parent = nullptr);
    void montrer(const Calcul &calcul);

private:
    Libelle *aucunLivre_;
    QList<RangeeMontant> lignes_; // as many as the longest order so far; the spare ones are hidden
    RangeeMontant sousTotal_;
};

} // namespace Quillet
