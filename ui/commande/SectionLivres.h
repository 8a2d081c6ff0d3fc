#pragma once

#include "model/Calcul.h"
#include "ui/commande/RangeeMontant.h"

namespace Quillet {

class Alerte;
class Libelle;

// The books of the order and their sub-total.
class SectionLivres : public Formulaire::Section
{
    Q_OBJECT

public:
    explicit SectionLivres(QWidget *parent = nullptr);
    // `autres`: what is said of books that do not count; empty for none.
    void montrer(const Calcul &calcul, const QString &autres);

private:
    Libelle *aucunLivre_;
    QList<RangeeMontant> lignes_; // as many as the longest order so far; the spare ones are hidden
    RangeeMontant sousTotal_;
    Alerte *autres_;
};

} // namespace Quillet
