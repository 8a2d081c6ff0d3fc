#include "ui/echanges/FeuilleListe.h"

#include "composants/Boutons.h"
#include "composants/Libelle.h"
#include "composants/Pile.h"
#include "textes/TextesListe.h"
#include "textes/TextesReglages.h"
#include "ui/AlerteRelecture.h"
#include "ui/Contexte.h"
#include "ui/echanges/Listes.h"
#include "ui/echanges/RangeesDeListe.h"

#include <QPushButton>

namespace Quillet {

namespace {

constexpr QSize taille(640, 620);
constexpr int marge = 24;

Libelle *texte(Libelle::Rang rang)
{
    auto *texte = new Libelle({}, rang);
    texte->setWordWrap(true);
    return texte;
}

} // namespace

FeuilleListe::FeuilleListe(const Contexte &contexte, const QByteArray &octets, const ListeDeLivres &liste,
                           QWidget *parent)
    : Feuille(QStringLiteral("Lire une liste"), parent),
      contexte_(contexte),
      octets_(octets),
      liste_(liste),
      resume_(texte(Libelle::Rang::principal)),
      colonnes_(texte(Libelle::Rang::secondaire)),
      rangees_(new RangeesDeListe),
      erreur_(new AlerteRelecture(contexte.catalogue)),
      prendre_(new QPushButton)
{
    Libelle *regle =
        Libelle::note(QStringLiteral("Une liste ajoute et change ; elle ne retire aucun livre, et une case "
                                     "vide laisse le livre comme il est."));
    QPushButton *annuler = Boutons::deFeuille(QStringLiteral("Annuler"));
    connect(annuler, &QPushButton::clicked, this, &QDialog::reject);
    connect(prendre_, &QPushButton::clicked, this, &FeuilleListe::prendre);
    connect(&contexte_.catalogue, &Catalogue::change, this, &FeuilleListe::relire); // by another computer
    connect(this, &QDialog::finished, this, [this] {
        disconnect(&contexte_.catalogue, nullptr, this, nullptr);
    }); // what it says stays until it is gone

    QBoxLayout *tete = Pile::colonne({.marges = {marge, marge, marge, 12}, .espace = 6},
                                     {Libelle::titreDeSection(windowTitle()), resume_, colonnes_, regle});
    QBoxLayout *boutons = Pile::rangee({}, {Pile::reste(), annuler, prendre_});
    QBoxLayout *pied = Pile::colonne({.marges = {marge, 14, marge, 16}, .espace = 10}, {erreur_, boutons});
    Pile::colonne(this, {.espace = 0}, {tete, filet(Qt::Horizontal), {rangees_, 1}, filet(Qt::Horizontal), pied});
    prendre_->setDefault(true);
    montrer();
    prendreLaTaille(taille);
    rangees_->setFocus();
}

void FeuilleListe::relire()
{
    liste_ = Listes::lue(octets_, contexte_);
    montrer();
}

void FeuilleListe::montrer()
{
    resume_->setText(TextesListe::resume(liste_));
    colonnes_->setText(TextesListe::colonnes(liste_));
    rangees_->montrer(TextesListe::rangees(liste_, contexte_.donnees().reglages));
    prendre_->setText(TextesListe::prendre(liste_));
    prendre_->setEnabled(contexte_.donnees().personnelles
                         && liste_.nombre(RangeeDeListe::Sort::ajoutee) + liste_.nombre(RangeeDeListe::Sort::changee)
                                > 0);
    erreur_->montrer(pasLesVotres());
}

// Why nothing can be taken; empty: the books are the sellers' own.
QString FeuilleListe::pasLesVotres() const
{
    const Ressources &ressources = contexte_.catalogue.ressources();
    if (contexte_.donnees().personnelles)
        return {};
    if (ressources.origine() == Origine::exemple)
        return QStringLiteral("Ces livres sont un exemple : une liste ne change que les vôtres.");
    return TextesReglages::ouLesChanger(ressources.dossier().path());
}

void FeuilleListe::prendre()
{
    try {
        contexte_.historique.remplacer(liste_.appliquee(contexte_.donnees().livres), TextesListe::geste(liste_));
        accept();
    } catch (const ErreurStockage &echec) {
        erreur_->montrer(echec);
    }
}

} // namespace Quillet
