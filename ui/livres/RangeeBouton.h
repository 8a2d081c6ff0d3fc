#pragma once

#include "textes/TextesBoutons.h"

#include <QWidget>

class QGridLayout;
class QPushButton;

namespace Quillet {

class BoutonCopier;
class Libelle;
class LibelleASymbole;

// One PayPal button of a book, as a row of a grid: what it charges, what it should charge, and what to do about it.
class RangeeBouton : public QObject
{
    Q_OBJECT

public:
    // Row 0: the heads of the columns.
    static void placerLesTetes(QGridLayout &grille);

    RangeeBouton(QGridLayout &grille, int ligne, QObject *parent);
    void montrer(const TextesBoutons::Ligne &ligne);
    void setVisible(bool visible);
    [[nodiscard]] int haut() const { return cellules_.first()->y(); }
    // Whether the focus is on one of its controls.
    [[nodiscard]] bool aLeFocus() const;
    void prendreLeFocus();

signals:
    void reporter();
    void garder();

private:
    QList<QWidget *> cellules_;
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
