#include "ui/FeuilleDuJour.h"

#include <QEvent>

#include <utility>

FeuilleDuJour::FeuilleDuJour(const QString &titre, Aujourdhui aujourdhui, QWidget *parent)
    : Feuille(titre, parent), aujourdhui_(std::move(aujourdhui)), jour_(aujourdhui_())
{
}

void FeuilleDuJour::suivreLeJour()
{
    const QDate jour = aujourdhui_();
    if (jour == jour_)
        return;
    jour_ = jour;
    actualiser();
}

bool FeuilleDuJour::event(QEvent *evenement)
{
    if (evenement->type() == QEvent::WindowActivate)
        suivreLeJour();
    return Feuille::event(evenement);
}
