#include "ui/livres/ListeLivres.h"

#include "composants/Theme.h"
#include "ui/Raccourcis.h"
#include "ui/livres/DelegueLivres.h"
#include "ui/livres/ModeleLivres.h"
#include "ui/livres/VoletLivres.h"

#include <QDragMoveEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>

namespace Quillet {

namespace {

using EditionLivres::Cote;
using Raccourcis::Geste;

constexpr int epaisseur = 3; // of the mark where a dragged book would go, px

bool est(const QKeyEvent &evenement, Geste geste)
{
    return Raccourcis::touches(geste).contains(QKeySequence(evenement.keyCombination()));
}

} // namespace

// The margins belong to the list: its scroll bar stands at the edge of the pane.
ListeLivres::ListeLivres(const ModeleLivres &modele, const DelegueLivres &dessin) : modele_(modele), dessin_(dessin)
{
    setViewportMargins(VoletLivres::margeGauche, 0,
                       VoletLivres::marge - style()->pixelMetric(QStyle::PM_ScrollBarExtent), 0);
    setDragDropMode(QAbstractItemView::InternalMove);
    setDropIndicatorShown(false); // this one draws its own
    connect(this, &QAbstractItemView::doubleClicked, this, &ListeLivres::modifier);
}

void ListeLivres::deplacer(Cote vers)
{
    const int rang = currentIndex().row();
    const bool auBord = rang < 0 || (vers == Cote::avant ? modele_.ouvreUnGroupe(rang) : modele_.fermeUnGroupe(rang));
    if (!auBord)
        emit deplace(modele_.livre(rang).id, vers, modele_.livre(vers == Cote::avant ? rang - 1 : rang + 1).id);
}

void ListeLivres::keyPressEvent(QKeyEvent *evenement)
{
    const bool choisi = currentIndex().isValid();
    if (choisi && (evenement->key() == Qt::Key_Return || evenement->key() == Qt::Key_Enter))
        emit modifier();
    else if (choisi && est(*evenement, Geste::retirerLeLivre))
        emit retirer();
    else if (est(*evenement, Geste::monterLeLivre))
        deplacer(Cote::avant);
    else if (est(*evenement, Geste::descendreLeLivre))
        deplacer(Cote::apres);
    else
        ListeDite<QListView>::keyPressEvent(evenement);
}

// Above or below the book under the pointer, when it is one of the same seller's.
std::optional<ListeLivres::Cible> ListeLivres::cible(const QDropEvent &evenement) const
{
    const QPoint position = evenement.position().toPoint();
    const QModelIndex la = indexAt(position);
    const auto tire = modele_.tire(*evenement.mimeData());
    if (!la.isValid() || !tire || modele_.livre(la.row()).vendeur != modele_.livre(*modele_.rang(*tire)).vendeur)
        return std::nullopt;
    const bool enHaut = position.y() < dessin_.cadreDuLivre(visualRect(la), la.row()).center().y();
    return Cible{la.row(), enHaut ? Cote::avant : Cote::apres};
}

void ListeLivres::montrerLaCible(const std::optional<Cible> &cible)
{
    cible_ = cible;
    viewport()->update();
}

void ListeLivres::dragEnterEvent(QDragEnterEvent *evenement)
{
    if (modele_.tire(*evenement->mimeData()))
        evenement->acceptProposedAction();
}

// The list scrolls by itself at its edges; whether the book can go there is this list's to say.
void ListeLivres::dragMoveEvent(QDragMoveEvent *evenement)
{
    ListeDite<QListView>::dragMoveEvent(evenement);
    montrerLaCible(cible(*evenement));
    cible_ ? evenement->acceptProposedAction() : evenement->ignore();
}

void ListeLivres::dragLeaveEvent(QDragLeaveEvent *evenement)
{
    ListeDite<QListView>::dragLeaveEvent(evenement);
    montrerLaCible({});
}

void ListeLivres::dropEvent(QDropEvent *evenement)
{
    const auto la = cible(*evenement);
    stopAutoScroll();
    setState(NoState);
    montrerLaCible({});
    if (!la)
        return;
    evenement->acceptProposedAction();
    emit deplace(*modele_.tire(*evenement->mimeData()), la->cote, modele_.livre(la->rang).id);
}

void ListeLivres::paintEvent(QPaintEvent *evenement)
{
    ListeDite<QListView>::paintEvent(evenement);
    if (!cible_)
        return;
    QPainter peintre(viewport());
    const QRect livre = dessin_.cadreDuLivre(visualRect(modele_.index(cible_->rang)), cible_->rang);
    const int bord = cible_->cote == Cote::avant ? livre.top() : livre.bottom() + 1;
    peintre.fillRect(QRect(livre.left(), bord - epaisseur / 2, livre.width(), epaisseur),
                     Theme::accentTexte(palette()));
}

} // namespace Quillet
