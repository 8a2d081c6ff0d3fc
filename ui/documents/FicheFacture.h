#pragma once

#include "documents/Facture.h"
#include "model/Preferences.h"

#include <QStackedWidget>

#include <functional>
#include <optional>

class Alerte;
class ApercuFacture;
class EtatVide;
class JourCourant;
class Libelle;
class QLineEdit;
class ZoneDeTexte;

// The invoice of the order: its number and buyer to complete, then paper or PDF.
class FicheFacture : public QStackedWidget
{
    Q_OBJECT

public:
    // `reglages` is read each time the screen is brought up to date.
    FicheFacture(const Reglages &reglages, Preferences preferences, const JourCourant &jour, QWidget *parent = nullptr);
    void montrer(const Calcul &calcul);
    // To where the buyer is typed.
    void prendreLeFocus();

signals:
    // The invoice is about to leave: time to bring it up to the day.
    void emission();

private:
    QWidget *formulaire();
    QWidget *sorties();
    void proposer();
    void completer();
    void imprimer();
    void enregistrer();
    // `sortir` returns whether the invoice left the program; only then does its number count. True when all is done.
    bool emettre(const QString &issue, const std::function<bool(const Facture &)> &sortir);
    void retenir(const QString &numero);
    void prevenir(const QString &message);

    const Reglages &reglages_;
    Preferences preferences_;
    const JourCourant &jour_;
    Vendeur vendeur_ = Vendeur::davrel;
    std::optional<Facture> facture_; // the one shown
    EtatVide *impossible_;
    QLineEdit *numero_;
    QString propose_;         // the last one: while the field holds it, nobody has typed or dictated another
    QString sansProposition_; // why there is no number to propose; empty when there is one
    Alerte *remarque_;
    ZoneDeTexte *acheteur_;
    Alerte *sansSiret_;
    Libelle *identite_;
    ApercuFacture *apercu_;
    Alerte *issue_;
};
