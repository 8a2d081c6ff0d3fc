#pragma once

#include "documents/EmissionFacture.h"

#include <QStackedWidget>

#include <chrono>
#include <functional>
#include <optional>

class QLineEdit;

namespace Quillet {

class Alerte;
class ApercuFacture;
class EtatVide;
class FactureAgrandie;
class Libelle;
class ZoneDeTexte;
struct Contexte;

// The invoice of the order: its number and buyer to complete, then paper or PDF.
class FicheFacture : public QStackedWidget
{
    Q_OBJECT

public:
    explicit FicheFacture(const Contexte &contexte, QWidget *parent = nullptr);
    void montrer(const Calcul &calcul);
    // For what a print server tells before its dialog opens.
    void setPatience(std::chrono::milliseconds duree) { patience_ = duree; }
    // To where the buyer is typed.
    void prendreLeFocus();

private:
    enum class Page { formulaire, impossible, agrandie };

    void passerA(Page page);
    void quitterLaPage(); // enlarged, back to the form
    QWidget *formulaire();
    QWidget *sorties();
    QWidget *ouvertures();
    void completer();
    void remarquerLeNumero();
    void imprimer();
    void enregistrer();
    // What became of the invoice; empty when nothing has yet.
    void direLIssue(const QString &issue);
    // Has the invoice leave: into the file that is given, onto paper when it is empty, not at all when there is none.
    using Sortie = std::function<std::optional<QString>(const Facture &)>;
    // The same, when all is done.
    std::optional<QString> emettre(const Sortie &sortir);
    bool encoreLibre(const Facture &facture);
    void prevenir(const QString &message);

    const Contexte &contexte_;
    EmissionFacture emission_;
    std::chrono::milliseconds patience_{6'000};
    Vendeur vendeur_ = Vendeur::davrel;
    std::optional<Facture> facture_; // the one shown
    EtatVide *impossible_;
    QLineEdit *numero_;
    Alerte *exemple_; // that the name on it is invented
    Alerte *remarque_;
    Alerte *dejaPartie_;
    ZoneDeTexte *acheteur_;
    Alerte *sansSiret_;
    Alerte *sansAcheteur_;
    Libelle *identite_;
    ApercuFacture *apercu_;
    FactureAgrandie *agrandie_;
    Alerte *issue_;
    QString fichier_; // where it was saved last
    QWidget *ouvertures_;
};

} // namespace Quillet
