#include "composants/NombreRoulant.h"

#include "composants/Chiffres.h"
#include "composants/Ressort.h"

#include <QPainter>

#include <algorithm>

namespace Quillet {

NombreRoulant::NombreRoulant(QWidget *parent)
    : LibelleChiffre({}, Rang::principal, parent), progres_(new Ressort(Ressorts::action, this))
{
    progres_->placer(1);
}

void NombreRoulant::afficher(const QString &texte, int sens, const QString &dit)
{
    if (texte == text())
        return;
    precedent_ = text();
    sens_ = sens;
    setText(texte);
    setAccessibleName(dit.isEmpty() ? texte : dit);
    progres_->placer(precedent_.isEmpty() ? 1 : 0);
    progres_->vers(1);
}

void NombreRoulant::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);

    const QString texte = text();
    const double progres = std::clamp(progres_->valeur(), 0.0, 1.0);
    const int ligne = (height() + fontMetrics().ascent() - fontMetrics().descent()) / 2;
    const double course = fontMetrics().height() * 0.7 * sens_;
    const auto dessiner = [&](QChar caractere, double x, double y, double opacite) {
        peintre.setOpacity(opacite);
        Chiffres::peindre(peintre, caractere, x, y);
    };

    // Characters face each other from the right: units stay over units when a number gains a digit.
    double x = alignment() & Qt::AlignHCenter ? (width() + Chiffres::largeur(fontMetrics(), texte)) / 2.0
                                              : contentsRect().right() + 1.0;
    const qsizetype longueur = progres < 1 ? std::max(texte.size(), precedent_.size()) : texte.size();
    for (qsizetype rang = 1; rang <= longueur; ++rang) {
        const QChar nouveau = rang <= texte.size() ? texte[texte.size() - rang] : QChar();
        const QChar ancien = rang <= precedent_.size() ? precedent_[precedent_.size() - rang] : QChar();
        x -= Chiffres::largeur(fontMetrics(), nouveau.isNull() ? ancien : nouveau);
        if (progres >= 1 || nouveau == ancien) {
            dessiner(nouveau, x, ligne, 1);
            continue;
        }
        if (!nouveau.isNull())
            dessiner(nouveau, x, ligne + course * (1 - progres), progres);
        if (!ancien.isNull())
            dessiner(ancien, x, ligne - course * progres, 1 - progres);
    }
}

} // namespace Quillet
