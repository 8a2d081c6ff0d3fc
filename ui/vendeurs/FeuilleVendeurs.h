#pragma once

#include "composants/Feuille.h"
#include "model/Reglages.h"
#include "ui/vendeurs/ChampsDeReglages.h"

#include <QMap>

#include <functional>
#include <optional>

class QPushButton;

namespace Quillet {

class Alerte;
class AlerteRelecture;
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
    // What could not be kept is said once before it is given up.
    void reject() override;

private:
    QWidget *page();
    QWidget *chezUnAutre();
    void montrer();
    void ajouterUnVendeur();
    void retirer(Vendeur vendeur);
    QString ecrire(const Reglages &apres, const QString &chemin, const QString &geste);
    void tenter(const std::function<void()> &geste);
    void reprendreLesDonnees();
    [[nodiscard]] const Reglages &montres();
    [[nodiscard]] QWidget *enSuspens();
    [[nodiscard]] QStringList commence() const;

    const Contexte &contexte_;
    AlerteRelecture *echec_;
    struct Fiche
    {
        FicheVendeur *fiche;
        QPushButton *retirer;
        QWidget *ensemble;
        Alerte *refus;
        QWidget *attente;
    };
    QMap<Vendeur, Fiche> vendeurs_;
    QWidget *liste_ = nullptr;
    QPushButton *ajouter_ = nullptr;
    FicheEmballages *emballages_ = nullptr;
    FicheMentions *mentions_ = nullptr;
    // A second seller, in no file before there is a name and an address.
    struct Nouveau
    {
        Vendeur vendeur;
        IdentiteVendeur identite;
    };
    std::optional<Nouveau> nouveau_;
    QStringList avantRelecture_; // what `commence` gave
    Reglages montres_;
    bool averti_ = false;    // that closing gives something up
    QList<Reglages> tentes_; // and were not kept
};

} // namespace Quillet
