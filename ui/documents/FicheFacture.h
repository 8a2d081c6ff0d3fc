#pragma once

#include "documents/NumerotationFactures.h"
#include "ui/Aujourdhui.h"

#include <QStackedWidget>

class Alerte;
class ApercuFacture;
class Catalogue;
class Commande;
class EtatVide;
struct Facture;
struct IdentiteVendeur;
class Libelle;
class QLineEdit;
class ZoneDeTexte;

// The invoice of the order: its number and buyer to complete, then paper or PDF.
class FicheFacture : public QStackedWidget
{
    Q_OBJECT

public:
    FicheFacture(const Catalogue &catalogue, const Commande &commande, const Preferences &preferences,
                 Aujourdhui aujourdhui, QWidget *parent = nullptr);

private:
    QWidget *formulaire();
    QWidget *papier();
    void actualiser();
    void montrerLeVendeur(const IdentiteVendeur &vendeur);
    [[nodiscard]] std::optional<Facture> facture() const;
    void imprimer();
    void enregistrer();
    // The invoice has left: its number counts from now on.
    void retenir(const QString &numero);

    const Catalogue &catalogue_;
    const Commande &commande_;
    Preferences preferences_;
    NumerotationFactures numerotation_;
    Aujourdhui aujourdhui_;
    EtatVide *impossible_;
    QLineEdit *numero_;
    Alerte *remarque_;
    ZoneDeTexte *acheteur_;
    Alerte *sansSiret_;
    Libelle *vendeur_;
    ApercuFacture *apercu_;
    Alerte *issue_;
};
