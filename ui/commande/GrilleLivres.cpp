#include "ui/commande/GrilleLivres.h"

#include "model/Commande.h"
#include "ui/commande/CarteLivre.h"
#include "ui/commande/ClavierDeLaGrille.h"
#include "ui/commande/Couverture.h"
#include "ui/commande/TransitionCartes.h"

#include <QApplication>
#include <QPointerEvent>
#include <QWindow>

#include <algorithm>

namespace Quillet {

namespace {

constexpr int largeurMaximale = 210;
constexpr int espace = 32;

int largeurMinimale()
{
    return std::max(170, CarteLivre::largeurMinimale());
}

struct Disposition
{
    int colonnes;
    int largeur; // of what a card shows
    int gauche;
};

Disposition disposition(int place)
{
    const int minimum = largeurMinimale();
    const int colonnes = std::max(1, (place + espace) / (minimum + espace));
    const int largeur =
        std::clamp((place - espace * (colonnes - 1)) / colonnes, minimum, std::max(minimum, largeurMaximale));
    return {colonnes, largeur, std::max(0, (place - colonnes * largeur - espace * (colonnes - 1)) / 2)};
}

} // namespace

GrilleLivres::GrilleLivres(Commande &commande, ImagesCouvertures &images, QWidget *precedent, QWidget *parent)
    : QWidget(parent),
      commande_(commande),
      images_(images),
      precedent_(precedent),
      clavier_(new ClavierDeLaGrille(this))
{
    QSizePolicy politique(QSizePolicy::Expanding, QSizePolicy::Preferred);
    politique.setHeightForWidth(true);
    setSizePolicy(politique);
    qApp->installEventFilter(this);
}

// What the window is told, not what Qt makes of it: a widget that comes under a still pointer is not told that it
// does, nor then that the pointer leaves it.
bool GrilleLivres::eventFilter(QObject *objet, QEvent *evenement)
{
    const bool fenetre = objet->isWindowType() && objet == window()->windowHandle();
    switch (evenement->type()) {
    case QEvent::Enter:
    case QEvent::MouseMove:
        if (!fenetre)
            return false;
        pointeur_ = static_cast<QSinglePointEvent *>(evenement)->globalPosition();
        break;
    case QEvent::Leave:
    case QEvent::WindowBlocked: // by a sheet
        if (!fenetre)
            return false;
        pointeur_.reset();
        break;
    case QEvent::Show:
    case QEvent::Hide: // of a menu or a list, which is none before nor after
        if (objet->isWidgetType() && static_cast<QWidget *>(objet)->windowType() == Qt::Popup)
            QMetaObject::invokeMethod(this, &GrilleLivres::suivreLePointeur, Qt::QueuedConnection);
        return false;
    default:
        return false;
    }
    suivreLePointeur();
    return false;
}

void GrilleLivres::montrer(const QList<Livre> &livres, const QString &vendu)
{
    const bool memes = std::ranges::equal(
        cartes_, livres, std::ranges::equal_to{}, [](const CarteLivre *carte) { return carte->livre().id; },
        &Livre::id);
    if (!memes) {
        remplacerLesCartes(livres, vendu);
        return;
    }
    TransitionCartes::arreter(this); // it shows the cards as they were
    for (qsizetype i = 0; i < livres.size(); ++i)
        cartes_[i]->montrer(livres[i], vendu, commande_.bon().quantite(livres[i]));
}

void GrilleLivres::remplacerLesCartes(const QList<Livre> &livres, const QString &vendu)
{
    TransitionCartes::arreter(this); // cards that it covers cannot be taken into a picture
    const auto sortantes = TransitionCartes::instantanes(cartes_);
    clavier_->suivre({}); // a card that goes hands the focus to the next
    qDeleteAll(cartes_);
    cartes_.clear();
    for (const Livre &livre : livres)
        cartes_.append(new CarteLivre(livre, vendu, commande_, images_, this));
    updateGeometry();
    placer();
    QWidget *precedent = precedent_;
    for (CarteLivre *carte : std::as_const(cartes_)) {
        carte->show();
        QWidget::setTabOrder(precedent, carte->couverture());
        precedent = carte->couverture();
    }
    clavier_->suivre(cartes_);
    suivreLePointeur();
    if (!sortantes.isEmpty())
        TransitionCartes::jouer(sortantes, TransitionCartes::instantanes(cartes_), images_, this);
}

QWidget *GrilleLivres::arret() const
{
    return clavier_->arret();
}

void GrilleLivres::suivreLePointeur()
{
    QWidget *dessous = nullptr; // what the pointer would press
    if (pointeur_ && isVisible() && !QApplication::activePopupWidget())
        dessous = window()->childAt(window()->mapFromGlobal(*pointeur_).toPoint());
    const bool dansLaGrille = dessous && isAncestorOf(dessous);
    for (CarteLivre *carte : std::as_const(cartes_))
        carte->soulever(dansLaGrille && carte->contient(carte->mapFromGlobal(*pointeur_).toPoint()));
}

int GrilleLivres::heightForWidth(int largeur) const
{
    const auto [colonnes, carte, gauche] = disposition(largeur - 2 * Couverture::debord);
    const int rangs = (static_cast<int>(cartes_.size()) + colonnes - 1) / colonnes;
    return std::max(0, rangs * (CarteLivre::hauteur(carte) + espace) - espace) + 2 * Couverture::debord;
}

QSize GrilleLivres::sizeHint() const
{
    return {largeurDeDeuxColonnes(), heightForWidth(std::max(width(), largeurDeDeuxColonnes()))};
}

QSize GrilleLivres::minimumSizeHint() const
{
    return {largeurMinimale() + 2 * Couverture::debord, 0};
}

int GrilleLivres::largeurDeDeuxColonnes()
{
    return 2 * largeurMinimale() + espace + 2 * Couverture::debord;
}

void GrilleLivres::changeEvent(QEvent *evenement)
{
    QWidget::changeEvent(evenement);
    if (evenement->type() == QEvent::FontChange)
        placer();
}

void GrilleLivres::resizeEvent(QResizeEvent *)
{
    placer();
}

void GrilleLivres::showEvent(QShowEvent *)
{
    suivreLePointeur();
}

void GrilleLivres::hideEvent(QHideEvent *)
{
    suivreLePointeur();
}

void GrilleLivres::placer()
{
    constexpr int debord = Couverture::debord;
    const auto [colonnes, largeur, gauche] = disposition(width() - 2 * debord);
    const int hauteur = CarteLivre::hauteur(largeur);
    for (int i = 0; i < cartes_.size(); ++i)
        cartes_[i]->setGeometry(gauche + (i % colonnes) * (largeur + espace), (i / colonnes) * (hauteur + espace),
                                largeur + 2 * debord, hauteur + 2 * debord);
    suivreLePointeur();
}

} // namespace Quillet
