#include "ui/misesajour/FeuilleMiseAJour.h"

#include "composants/Alerte.h"
#include "composants/Boutons.h"
#include "composants/Libelle.h"
#include "composants/Pile.h"
#include "composants/TailleDuTexte.h"
#include "composants/Theme.h"
#include "composants/ZoneDeTexte.h"
#include "textes/TextesMiseAJour.h"
#include "watch/MisesAJour.h"

#include <QProgressBar>
#include <QPushButton>

namespace Quillet {

namespace {

constexpr int largeur = 440; // of what is read
constexpr int marge = 24;
constexpr int lignesDeNotes = 9;

} // namespace

FeuilleMiseAJour::FeuilleMiseAJour(MisesAJour &misesAJour, QWidget *parent)
    : Feuille(QStringLiteral("Mises à jour"), parent),
      misesAJour_(misesAJour),
      titre_(new Libelle({})),
      detail_(new Libelle({}, Libelle::Rang::secondaire)),
      progres_(new QProgressBar),
      notes_(new ZoneDeTexte(lignesDeNotes)),
      alerte_(new Alerte),
      retrait_(Boutons::deFeuille({})),
      action_(new QPushButton)
{
    titre_->setFont(Theme::titreSection());
    for (Libelle *texte : {titre_, detail_})
        texte->setWordWrap(true);
    detail_->setTextInteractionFlags(Qt::TextSelectableByMouse); // it may hold a command to type
    progres_->setTextVisible(false);
    progres_->setFixedHeight(6);
    progres_->setAccessibleName(QStringLiteral("Progression"));
    notes_->setReadOnly(true);
    notes_->setAccessibleName(QStringLiteral("Nouveautés"));
    action_->setDefault(true);

    for (QWidget *partie : std::initializer_list<QWidget *>{titre_, detail_, progres_, notes_, alerte_})
        TailleDuTexte::suivre(partie, [partie] { partie->setFixedWidth(Theme::aLaTaille(largeur)); });
    QBoxLayout *boutons = Pile::rangee({}, {Pile::reste(), retrait_, action_});
    Pile::colonne(this, {.marges = {marge, marge, marge, 16}, .espace = 12},
                  {titre_, detail_, progres_, notes_, alerte_, Pile::blanc(4), boutons});
    layout()->setSizeConstraint(QLayout::SetFixedSize); // as high as what it says

    connect(&misesAJour_, &MisesAJour::change, this, &FeuilleMiseAJour::actualiser);
    connect(action_, &QPushButton::clicked, &misesAJour_, &MisesAJour::telecharger);
    connect(retrait_, &QPushButton::clicked, this, &FeuilleMiseAJour::retirer);
    connect(this, &QDialog::finished, this, [this] {
        disconnect(&misesAJour_, nullptr, this, nullptr); // what it says stays until it is gone
        misesAJour_.abandonner();
    });
    misesAJour_.verifier();
    actualiser();
}

void FeuilleMiseAJour::actualiser()
{
    const auto page = TextesMiseAJour::page(misesAJour_.etat(), misesAJour_.installee());
    titre_->setText(page.titre);
    detail_->setText(page.detail);
    detail_->setVisible(!page.detail.isEmpty());
    progres_->setRange(0, page.attente ? 0 : 1000);
    progres_->setValue(page.progres.value_or(0));
    progres_->setVisible(page.attente || page.progres);
    if (notes_->toPlainText() != page.notes)
        notes_->setPlainText(page.notes);
    notes_->setVisible(!page.notes.isEmpty());
    alerte_->montrer(page.alerte);
    retrait_->setText(page.retrait);
    action_->setText(page.action);
    const bool apparait = action_->isHidden() && !page.action.isEmpty();
    action_->setVisible(!page.action.isEmpty());
    if (apparait)
        action_->setFocus(); // not where "Annuler" was
}

// From a download back to what is available; else out.
void FeuilleMiseAJour::retirer()
{
    if (misesAJour_.etat().cas == MisesAJour::Etat::Cas::telechargement)
        misesAJour_.annuler();
    else
        reject();
}

} // namespace Quillet
