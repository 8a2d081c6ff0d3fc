#include "ui/commande/ClavierDeLaGrille.h"

#include "ui/commande/CarteLivre.h"
#include "ui/commande/Couverture.h"
#include "ui/commande/ParcoursDeLaGrille.h"

#include <QKeyEvent>

#include <algorithm>
#include <utility>

using namespace std::chrono_literals;

namespace Quillet {

ClavierDeLaGrille::ClavierDeLaGrille(QObject *parent) : QObject(parent)
{
    frappe_.setSingleShot(true);
    frappe_.setInterval(1s);
    connect(&frappe_, &QTimer::timeout, this, [this] {
        lettres_.clear();
        nombre_.reset();
    });
}

void ClavierDeLaGrille::suivre(const QList<CarteLivre *> &cartes)
{
    cartes_ = cartes;
    for (CarteLivre *carte : cartes_)
        carte->couverture()->installEventFilter(this);
    arreterA(0);
}

QWidget *ClavierDeLaGrille::arret() const
{
    return cartes_.isEmpty() ? nullptr : cartes_[rang_]->couverture();
}

void ClavierDeLaGrille::arreterA(int rang)
{
    rang_ = rang;
    for (int i = 0; i < cartes_.size(); ++i)
        cartes_[i]->couverture()->setFocusPolicy(i == rang ? Qt::StrongFocus : Qt::ClickFocus);
}

void ClavierDeLaGrille::aller(int rang)
{
    cartes_[rang]->couverture()->setFocus(Qt::ShortcutFocusReason); // as by Tab, with its ring
}

bool ClavierDeLaGrille::eventFilter(QObject *objet, QEvent *evenement)
{
    const auto ici = std::ranges::find(cartes_, objet, &CarteLivre::couverture);
    if (ici != cartes_.end() && evenement->type() == QEvent::FocusIn) {
        arreterA(static_cast<int>(std::distance(cartes_.begin(), ici)));
        nombre_.reset();
    }
    return (ici != cartes_.end() && evenement->type() == QEvent::KeyPress
            && presser(*static_cast<QKeyEvent *>(evenement)))
           || QObject::eventFilter(objet, evenement);
}

bool ClavierDeLaGrille::presser(const QKeyEvent &touche)
{
    if (touche.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return false;
    const auto colonnes = std::ranges::count(cartes_, cartes_.constFirst()->y(), &CarteLivre::y);
    if (const auto rang = ParcoursDeLaGrille::versOu(touche.key(), rang_, static_cast<int>(cartes_.size()),
                                                     static_cast<int>(colonnes))) {
        lettres_.clear();
        aller(*rang);
        return true;
    }
    if (!touche.text().isEmpty() && !touche.text().front().isLetter())
        lettres_.clear(); // what follows is another title
    if (touche.text().isEmpty() || !touche.text().front().isDigit())
        nombre_.reset(); // what follows is another number
    CarteLivre &carte = *cartes_[rang_];
    switch (touche.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        carte.compter(carte.quantite() + 1);
        return true;
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        carte.compter(0);
        return true;
    default:
        return touche.text().size() == 1 && ecrire(touche.text().front(), touche.isAutoRepeat());
    }
}

bool ClavierDeLaGrille::ecrire(QChar signe, bool repetee)
{
    CarteLivre &carte = *cartes_[rang_];
    if (signe == u'+' || signe == u'=') { // one key on most keyboards
        carte.compter(carte.quantite() + 1);
    } else if (signe == u'-' || signe == u'−') {
        carte.compter(carte.quantite() - 1);
    } else if (signe >= u'0' && signe <= u'9') {
        if (repetee)
            return true; // a digit held down is one digit
        nombre_ = ParcoursDeLaGrille::nombre(nombre_, signe.digitValue());
        frappe_.start();
        carte.compter(*nombre_);
    } else if (signe.isLetter()) {
        lettres_ += signe;
        frappe_.start();
        QStringList titres;
        for (const CarteLivre *autre : std::as_const(cartes_))
            titres.append(autre->livre().titre);
        if (const auto rang = ParcoursDeLaGrille::titre(titres, lettres_, rang_))
            aller(*rang);
    } else {
        return false;
    }
    return true;
}

} // namespace Quillet
