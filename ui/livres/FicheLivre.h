#pragma once

#include "model/Livre.h"
#include "model/PrixBouton.h"
#include "model/Tarifs.h"

#include <QWidget>

class QPushButton;

namespace Quillet {

class ChampSaisi;
class ImagesCouvertures;
class Interrupteur;
class Libelle;
class TableauBoutons;
struct Donnees;

// One book: its price, weight and availability to edit, and its PayPal buttons to keep in step.
class FicheLivre : public QWidget
{
    Q_OBJECT

public:
    // `donnees` are read each time the page is brought up to date.
    FicheLivre(const Donnees &donnees, ImagesCouvertures &images, QWidget *parent = nullptr);

    // `suivant` tells whether another book has prices to report.
    void montrer(const Livre &livre, const QList<PrixBouton> &boutons, const TarifsColissimo &tarifs, bool suivant);
    // Whether the book can be edited whole, copied, taken away.
    void permettre(bool toutModifier) { commandes_->setVisible(toutModifier); }
    // Takes what is still being typed.
    void conclure();

signals:
    void saisieRefusee(); // of what was typed in a field, which says why
    // The book as it should become, and what that does: "prix de « Le Phare de sel »".
    void modification(Livre livre, const QString &geste);
    void reporter(Livre livre, const QList<PrixBouton> &boutons);
    void garder(Livre livre, PrixBouton bouton);
    void livreSuivant();
    void modifier();
    void dupliquer();
    void retirer();

private:
    QWidget *enTete(ImagesCouvertures &images);
    QWidget *reglages();
    QWidget *commandes();
    QWidget *boutonsPaypal();
    // What the rules hold against the book; nothing when it is not the sellers' own, which others answer for.
    [[nodiscard]] QString objection(const Livre &essai, const QString &champ) const;

    const Donnees &donnees_;
    Livre livre_;
    QList<PrixBouton> boutons_;
    class Image;
    Image *image_ = nullptr;
    Libelle *titre_;
    Libelle *auteur_;
    Libelle *fabrication_;
    ChampSaisi *prix_ = nullptr;
    ChampSaisi *poids_ = nullptr;
    Interrupteur *disponible_;
    QWidget *commandes_ = nullptr;
    Libelle *situation_; // of the buttons, in a line
    QPushButton *page_;
    QPushButton *toutReporter_;
    QPushButton *suivant_;
    TableauBoutons *tableau_;
};

} // namespace Quillet
