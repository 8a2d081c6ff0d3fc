#include "composants/Alerte.h"

#include "composants/Icone.h"
#include "composants/LecteurDEcran.h"
#include "composants/Libelle.h"
#include "composants/TailleDuTexte.h"
#include "composants/Theme.h"

#include <QHBoxLayout>
#include <QPainter>

namespace Quillet {

namespace {

constexpr int espace = 8;

int coteSymbole()
{
    return Theme::aLaTaille(17);
}

} // namespace

Alerte::Alerte(const QString &texte, QWidget *parent)
    : Alerte(QStringLiteral("exclamationmark.triangle"), texte, Ton::avertissement, parent)
{
}

Alerte::Alerte(QString symbole, const QString &texte, Ton ton, QWidget *parent)
    : QWidget(parent),
      symbole_(std::move(symbole)),
      ton_(ton),
      texte_(new Libelle({}, ton == Ton::note ? Libelle::Rang::secondaire : Libelle::Rang::principal))
{
    LecteurDEcran::jouer(this, QAccessible::Notification);
    texte_->setFont(Theme::encadre());
    texte_->setWordWrap(true);
    auto *rangee = new QHBoxLayout(this);
    TailleDuTexte::suivre(this, [rangee] { rangee->setContentsMargins(coteSymbole() + espace, 0, 0, 0); });
    rangee->addWidget(texte_);
    dire(texte);
    if (texte.isEmpty())
        hide();
}

void Alerte::montrer(const QString &texte)
{
    if (!texte.isEmpty())
        dire(texte); // one that goes keeps its words: a reader may be about to say them
    setVisible(!texte.isEmpty());
}

void Alerte::dire(const QString &texte)
{
    texte_->setText(texte);
    const QString dit = ton_ == Ton::avertissement ? QStringLiteral("Attention : %1").arg(texte) : texte;
    setAccessibleName(dit); // spoken when the line appears
    texte_->setAccessibleName(dit);
}

void Alerte::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);
    const int haut = texte_->y() + (texte_->fontMetrics().height() - coteSymbole()) / 2;
    const QColor couleur = ton_ == Ton::avertissement ? Theme::orange(palette()) : Theme::secondaire(palette());
    Icone::peindre(peintre, symbole_, QRectF(0, haut, coteSymbole(), coteSymbole()), couleur);
}

} // namespace Quillet
