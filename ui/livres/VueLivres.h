#pragma once

#include "model/EditionLivres.h"
#include "model/Historique.h"
#include "ui/EcranDeRubrique.h"

#include <QTimer>

#include <functional>

class QPushButton;
class QStackedWidget;

namespace Quillet {

class Alerte;
class ChoixTarifs;
class EnTete;
class FicheLivre;
class VoletLivres;
struct Contexte;
struct Livre;

// Both sellers' books: their list on the left, the chosen one beside it to edit. Every change is saved at once and can
// be undone until the program closes.
class VueLivres : public EcranDeRubrique
{
    Q_OBJECT

public:
    explicit VueLivres(const Contexte &contexte, QWidget *parent = nullptr);

    [[nodiscard]] bool conclure() override;

signals:
    // The seller wants books and sellers of his own in place of the example's.
    void mettreLesSiens();

protected:
    void showEvent(QShowEvent *evenement) override;

private:
    QWidget *gauche();
    QWidget *droite();
    void actualiser();
    void tenter(const std::function<void()> &geste);
    void montrerLeTouche(std::optional<qint64> livre);
    void revenir();
    void ajouter();
    void modifier();
    void dupliquer();
    void retirer();
    void deplacer(qint64 id, EditionLivres::Cote cote, qint64 voisin);
    void completer(const Livre &brouillon);
    void direLeRetrait(const QString &titre);

    const Contexte &contexte_;
    Historique &historique_;
    EnTete *enTete_;
    ChoixTarifs *choix_;
    VoletLivres *volet_;
    FicheLivre *fiche_;
    Alerte *echec_;
    Alerte *retrait_; // of the book last taken away
    QWidget *bandeDuRetrait_ = nullptr;
    QPushButton *revenir_;
    QPushButton *siens_;
    QPushButton *ajouter_;
    QStackedWidget *place_ = nullptr;
    QTimer lecture_; // runs while what has just failed has not been read yet
};

} // namespace Quillet
