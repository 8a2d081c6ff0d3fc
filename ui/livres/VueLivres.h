#pragma once

#include "model/HistoriqueLivres.h"

#include <QKeySequence>
#include <QWidget>

#include <functional>

class Alerte;
class Catalogue;
class ChoixTarifs;
class EnTete;
class FicheLivre;
class ImagesCouvertures;
class JourCourant;
class QStackedWidget;
class QToolButton;
class VoletLivres;

// Both sellers' books: their list on the left, the chosen one beside it to edit. Every change is saved at once and can
// be undone until the program closes.
class VueLivres : public QWidget
{
    Q_OBJECT

public:
    VueLivres(Catalogue &catalogue, ImagesCouvertures &images, const JourCourant &jour, QWidget *parent = nullptr);

    // Ends the edit under way; false when it could not be saved, which the screen says.
    [[nodiscard]] bool conclure();

protected:
    void showEvent(QShowEvent *evenement) override;

private:
    QWidget *gauche();
    QWidget *droite();
    QToolButton *creerBouton(const QString &symbole, QKeySequence::StandardKey touches);
    void actualiser();
    void montrerAnnulation();
    void tenter(const std::function<void()> &geste);
    void revenir();

    Catalogue &catalogue_;
    HistoriqueLivres historique_;
    const JourCourant &jour_;
    EnTete *enTete_;
    ChoixTarifs *choix_;
    VoletLivres *volet_;
    FicheLivre *fiche_;
    Alerte *echec_;
    QStackedWidget *place_ = nullptr;
    QToolButton *annuler_;
    QToolButton *retablir_;
};
