#include "composants/ChampAPropositions.h"

#include "composants/LecteurDEcran.h"
#include "composants/SelectionDuLecteur.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QStringListModel>

namespace Quillet {

ChampAPropositions::ChampAPropositions(Recherche recherche, QWidget *parent)
    : LigneDeTexte(parent),
      recherche_(std::move(recherche)),
      proposees_(new QStringListModel(this)),
      liste_(new QCompleter(proposees_, this))
{
    liste_->setWidget(this); // not setCompleter, which would write in the field what the arrows reach
    liste_->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    connect(this, &QLineEdit::textEdited, this, &ChampAPropositions::proposer);
    connect(this, &QLineEdit::returnPressed, this, &ChampAPropositions::valider);
    connect(liste_, qOverload<const QModelIndex &>(&QCompleter::activated), this, &ChampAPropositions::prendre);
    connect(liste_, qOverload<const QString &>(&QCompleter::highlighted), this,
            [this](const QString &proposition) { LecteurDEcran::annoncer(this, proposition); });
    auto *lecteur = new SelectionDuLecteur(liste_->popup()->selectionModel(), this);
    connect(lecteur, &SelectionDuLecteur::prise, this, [this](const QModelIndex &proposition) {
        liste_->popup()->hide();
        prendre(proposition);
    });
}

void ChampAPropositions::proposer()
{
    proposees_->setStringList(recherche_(text()));
    if (proposees_->rowCount() == 0) {
        liste_->popup()->hide();
        return;
    }
    liste_->complete();
    liste_->popup()->setCurrentIndex(liste_->popup()->model()->index(0, 0));
}

// The open list hands Return to the field before it takes it for itself.
void ChampAPropositions::valider()
{
    if (liste_->popup()->isVisible() || text().trimmed().isEmpty())
        return;
    proposer();
    if (proposees_->rowCount() == 0)
        emit sansReponse(text());
}

void ChampAPropositions::prendre(const QModelIndex &proposition)
{
    emit choisie(proposition.row());
}

} // namespace Quillet
