#pragma once

#include "composants/Feuille.h"
#include "model/Vendeur.h"
#include "ui/vendeurs/ChampsDeReglages.h"

#include <QMap>

#include <functional>

class QPushButton;

namespace Quillet {

class Alerte;
class FicheEmballages;
class FicheMentions;
class FicheVendeur;
struct Contexte;

// Sellers, packagings and customs of one's own, each kept as soon as its field is left. With others' data there is
// nothing to change: the sheet says where they are, and how to have one's own.
class FeuilleVendeurs : public Feuille
{
    Q_OBJECT

public:
    explicit FeuilleVendeurs(const Contexte &contexte, QWidget *parent = nullptr);
    // The sheet for the data in force: with the example, the first steps.
    static void ouvrir(const Contexte &contexte, QWidget *parent);

private:
    QWidget *page();
    QWidget *chezUnAutre();
    void montrer();
    void ajouterUnVendeur();
    void retirer(Vendeur vendeur);
    QString ecrire(const Reglages &apres, const QString &chemin, const QString &geste);
    void tenter(const std::function<void()> &geste);
    void reprendreLesDonnees();

    const Contexte &contexte_;
    Alerte *echec_;
    struct Fiche
    {
        FicheVendeur *fiche;
        QPushButton *retirer;
        QWidget *ensemble;
        Alerte *refus;
    };
    QMap<Vendeur, Fiche> vendeurs_;
    QWidget *liste_ = nullptr;
    QPushButton *ajouter_ = nullptr;
    FicheEmballages *emballages_ = nullptr;
    FicheMentions *mentions_ = nullptr;
};

} // namespace Quillet
