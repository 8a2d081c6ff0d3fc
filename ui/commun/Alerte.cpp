#include "ui/commun/Alerte.h"

#include "ui/Theme.h"
#include "ui/commun/Icone.h"
#include "ui/commun/Libelle.h"

#include <QHBoxLayout>
#include <QPainter>

namespace {
constexpr int coteSymbole = 17;
constexpr int espace = 8;
} // namespace

Alerte::Alerte(const QString &symbole, const QString &texte, QWidget *parent)
    : QWidget(parent), symbole_(symbole), texte_(new Libelle(texte))
{
    texte_->setFont(Theme::encadre());
    texte_->setWordWrap(true);
    texte_->setAccessibleName(tr("Attention : %1").arg(texte));
    auto *rangee = new QHBoxLayout(this);
    rangee->setContentsMargins(coteSymbole + espace, 0, 0, 0);
    rangee->addWidget(texte_);
}

void Alerte::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);
    const int haut = texte_->y() + (texte_->fontMetrics().height() - coteSymbole) / 2;
    Icone::peindre(peintre, symbole_, QRectF(0, haut, coteSymbole, coteSymbole), Theme::orange(palette()));
}
