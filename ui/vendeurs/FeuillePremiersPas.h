#pragma once

#include "composants/Feuille.h"
#include "model/Livre.h"
#include "model/Reglages.h"
#include "ui/vendeurs/ChampsDeReglages.h"

#include <functional>

class QPushButton;
class QStackedWidget;

namespace Quillet {

class AlerteRelecture;
class FicheEmballages;
class FormulaireLivre;
class Libelle;
class PasDuVendeur;
struct Contexte;

// From the example to one's own data, page by page: who sells, packagings, the first book. A draft until the end, where
// all is written at once.
class FeuillePremiersPas : public Feuille
{
    Q_OBJECT

public:
    explicit FeuillePremiersPas(const Contexte &contexte, QWidget *parent = nullptr);
    // What was typed is not given up by mistake.
    void reject() override;

private:
    enum class Page { vendeurs, emballages, livre };

    QWidget *page(const QString &consigne, QWidget *contenu);
    QWidget *pied();
    QString noter(const Reglages &apres, const QString &chemin);
    [[nodiscard]] Objections::ParChamp objections() const;
    void passerA(Page page);
    void suivre();
    [[nodiscard]] bool verifier();
    void terminer(bool avecLeLivre);
    void reprendreLesSeries();
    void remettreLeLivre();
    // What would be lost is given up only by who says so.
    void demander(const QString &quoi, const QString &perte, const QString &oui, const std::function<void()> &faire);
    void preparerLeLivre();

    const Contexte &contexte_;
    Reglages brouillon_;
    Reglages depart_; // what it was at first
    Livre premier_;   // the same of the book
    QStackedWidget *pages_;
    Libelle *titre_;
    PasDuVendeur *vendeurs_ = nullptr;
    FicheEmballages *emballages_ = nullptr;
    FormulaireLivre *livre_;
    AlerteRelecture *echec_;
    QPushButton *precedent_;
    QPushButton *plusTard_;
    QPushButton *suivant_;
};

} // namespace Quillet
