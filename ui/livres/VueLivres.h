#pragma once

#include "model/HistoriqueLivres.h"
#include "ui/Aujourdhui.h"

#include <QKeySequence>
#include <QWidget>

#include <functional>

class Alerte;
class Catalogue;
class ChoixTarifs;
class EnTete;
class FicheLivre;
class ImagesCouvertures;
class QAction;
class QStackedWidget;
class VoletLivres;

// Both sellers' books: their list on the left, the chosen one beside it to edit. Every change is saved at once and can
// be undone until the program closes.
class VueLivres : public QWidget
{
    Q_OBJECT

public:
    VueLivres(Catalogue &catalogue, ImagesCouvertures &images, Aujourdhui aujourdhui, QWidget *parent = nullptr);

protected:
    bool event(QEvent *evenement) override;

private:
    QWidget *gauche();
    QWidget *droite();
    QAction *commande(const QString &symbole, QKeySequence::StandardKey touches);
    void actualiser();
    void tenter(const std::function<void()> &geste);
    void revenir();

    Catalogue &catalogue_;
    HistoriqueLivres historique_;
    Aujourdhui aujourdhui_;
    EnTete *enTete_;
    ChoixTarifs *choix_;
    VoletLivres *volet_;
    FicheLivre *fiche_;
    Alerte *echec_;
    QStackedWidget *place_ = nullptr;
    QAction *annuler_;
    QAction *retablir_;
};
