#pragma once

#include "model/Historique.h"
#include "ui/EcranDeRubrique.h"
#include "ui/Raccourcis.h"

#include <QTimer>

#include <functional>

class QStackedWidget;
class QToolButton;

namespace Quillet {

class Alerte;
class ChoixTarifs;
class EnTete;
class FicheLivre;
class VoletLivres;
struct Contexte;

// Both sellers' books: their list on the left, the chosen one beside it to edit. Every change is saved at once and can
// be undone until the program closes.
class VueLivres : public EcranDeRubrique
{
    Q_OBJECT

public:
    explicit VueLivres(const Contexte &contexte, QWidget *parent = nullptr);

    [[nodiscard]] bool conclure() override;

protected:
    void showEvent(QShowEvent *evenement) override;

private:
    QWidget *gauche();
    QWidget *droite();
    QToolButton *creerBouton(const QString &symbole, Raccourcis::Geste geste);
    void actualiser();
    void montrerAnnulation();
    void tenter(const std::function<void()> &geste);
    void montrerLeTouche(std::optional<qint64> livre);
    void revenir();

    const Contexte &contexte_;
    Historique &historique_;
    EnTete *enTete_;
    ChoixTarifs *choix_;
    VoletLivres *volet_;
    FicheLivre *fiche_;
    Alerte *echec_;
    QStackedWidget *place_ = nullptr;
    QToolButton *annuler_;
    QToolButton *retablir_;
    QTimer lecture_; // runs while what has just failed has not been read yet
};

} // namespace Quillet
