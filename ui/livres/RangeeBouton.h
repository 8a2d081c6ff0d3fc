#pragma once

#include "composants/Tableau.h"
#include "textes/TextesBoutons.h"

class QPushButton;

namespace Quillet {

class BoutonCopier;
class Libelle;
class LibelleASymbole;

// One PayPal button of a book, as a row of a table: what it charges, what it should charge, and what to do about it.
class RangeeBouton : public QObject
{
    Q_OBJECT

public:
    static constexpr int marge = 9; // px, above and below its cells
    static QList<Tableau::Colonne> colonnes();
    // Columns stand still from one book to the next.
    static void fixerLesLargeurs(Tableau &tableau);

    // Adds itself to the table, which owns it.
    explicit RangeeBouton(Tableau &tableau);
    void montrer(const TextesBoutons::Ligne &ligne);
    // Whether the focus is on one of its controls.
    [[nodiscard]] bool aLeFocus() const;
    void prendreLeFocus();

signals:
    void reporter();
    void garder();

private:
    Libelle *destination_;
    Libelle *palier_;
    Libelle *actuel_;
    Libelle *calcule_;
    Libelle *ecart_;
    BoutonCopier *copier_;
    LibelleASymbole *etat_;
    QPushButton *reporter_;
    QPushButton *garder_;
};

} // namespace Quillet
