#pragma once

#include "model/Vendeur.h"
#include "ui/vendeurs/ChampsDeReglages.h"

#include <QDate>
#include <QMap>
#include <QWidget>

class QPushButton;

namespace Quillet {

class ChampDeFiche;
class FicheVendeur;

// The page of the first steps that asks who sells: one, or two, each with the number of the last invoice that was made
// without this program.
class PasDuVendeur : public QWidget
{
    Q_OBJECT

public:
    // `gardees`: the last invoices that are known already.
    PasDuVendeur(const EcritureDesReglages &ecriture, QDate jour, const QMap<Vendeur, QString> &gardees,
                 QWidget *parent = nullptr);

    void montrer();
    // Takes what is still being typed.
    void conclure();
    // Says what is wrong; gives the first field that is, null when none is.
    [[nodiscard]] QWidget *verifier(const Objections::ParChamp &objections);
    void prendreLeFocus();
    // Of those who sell, where it is another than was known; empty: the series begins.
    [[nodiscard]] QMap<Vendeur, QString> autresDernieresFactures() const;

signals:
    // A second seller comes, or goes.
    void deux(bool vrai);

private:
    struct Fiche
    {
        FicheVendeur *vendeur;
        ChampDeFiche *facture;
        QString gardee; // as the field showed it first
    };
    void verifierLaFacture(const Fiche &fiche);

    EcritureDesReglages ecriture_;
    QDate jour_;
    QMap<Vendeur, Fiche> fiches_;
    QPushButton *ajouter_;
    QPushButton *retirer_;
};

} // namespace Quillet
