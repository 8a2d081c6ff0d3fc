#include "composants/Ressort.h"

#include <QApplication>
#include <QStyle>
#include <QWidget>

#include <cmath>
#include <numbers>

namespace Quillet {

Ressort::Ressort(Reglage reglage, QWidget *anime, std::function<void(double)> applique)
    : QAbstractAnimation(anime), reglage_(reglage), anime_(anime), applique_(std::move(applique))
{
}

void Ressort::vers(double cible)
{
    if (cible == cible_)
        return;
    stop();
    cible_ = cible;
    if (!anime_->isVisible() || !QApplication::style()->styleHint(QStyle::SH_Widget_Animate)) {
        placer(cible);
        return;
    }
    ecartInitial_ = valeur_ - cible_;
    vitesseInitiale_ = vitesse_;
    start();
}

void Ressort::placer(double valeur)
{
    stop();
    valeur_ = cible_ = valeur;
    vitesse_ = 0;
    appliquer();
}

int Ressort::duration() const
{
    const double pulsation = 2 * std::numbers::pi / reglage_.reponse;
    return static_cast<int>(std::ceil(6910 / (reglage_.amortissement * pulsation)));
}

void Ressort::updateCurrentTime(int millisecondes)
{
    if (state() == Stopped)
        return;
    const double t = millisecondes / 1000.0;
    const double pulsation = 2 * std::numbers::pi / reglage_.reponse;
    const double frein = reglage_.amortissement * pulsation;
    const double pulsationAmortie = pulsation * std::sqrt(1 - reglage_.amortissement * reglage_.amortissement);
    const double a = ecartInitial_;
    const double b = (vitesseInitiale_ + frein * a) / pulsationAmortie;
    const double enveloppe = std::exp(-frein * t);
    const double cosinus = std::cos(pulsationAmortie * t);
    const double sinus = std::sin(pulsationAmortie * t);

    const double ecart = enveloppe * (a * cosinus + b * sinus);
    vitesse_ = enveloppe * pulsationAmortie * (b * cosinus - a * sinus) - frein * ecart;
    valeur_ = cible_ + ecart;
    if (millisecondes >= duration()) {
        valeur_ = cible_;
        vitesse_ = 0;
    }
    appliquer();
}

void Ressort::appliquer()
{
    if (applique_)
        applique_(valeur_);
    else
        anime_->update();
}

} // namespace Quillet
