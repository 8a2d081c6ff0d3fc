#pragma once

#include "composants/Formulaire.h"
#include "ui/vendeurs/ChampsDeReglages.h"

class QPushButton;
class QToolButton;

namespace Quillet {

class Alerte;
class ChampDeFiche;
class Choix;

// The packagings, in their order, and the one that a new order starts with.
class FicheEmballages : public Formulaire::Section
{
    Q_OBJECT

public:
    explicit FicheEmballages(const EcritureDesReglages &ecriture, QWidget *parent = nullptr);

    void montrer();
    void conclure() { champs_.conclure(); }
    [[nodiscard]] ChampDeFiche *enSuspens() const { return champs_.enSuspens(); }
    // The first field that is wrong; null when none is.
    [[nodiscard]] ChampDeFiche *objecter(const Objections::ParChamp &objections);
    void prendreLeFocus();

private:
    struct Rangee
    {
        QWidget *rangee;
        ChampDeFiche *nom;
        ChampDeFiche *poids;
        QToolButton *monter;
        QToolButton *descendre;
        QToolButton *retirer;
    };
    Rangee creer(qsizetype rang);
    void deplacer(qsizetype rang, qsizetype pas);
    void ecrire(const Reglages &apres, const QString &geste);

    ChampsDeReglages champs_;
    QWidget *liste_;
    QList<Rangee> rangees_;
    Alerte *echec_;
    QPushButton *ajouter_;
    Choix *deDepart_;
};

} // namespace Quillet
