#include "composants/Alerte.h"

#include "composants/LecteurDEcran.h"
#include "composants/LibelleASymbole.h"
#include "composants/Pile.h"
#include "composants/Theme.h"

namespace Quillet {

Alerte::Alerte(const QString &texte, QWidget *parent)
    : Alerte(QStringLiteral("exclamationmark.triangle"), texte, Ton::avertissement, parent)
{
}

Alerte::Alerte(const QString &symbole, const QString &texte, Ton ton, QWidget *parent)
    : QWidget(parent), ton_(ton), texte_(new LibelleASymbole(17, 8))
{
    LecteurDEcran::jouer(this, QAccessible::Notification);
    const bool note = ton == Ton::note;
    texte_->setRang(note ? Libelle::Rang::secondaire : Libelle::Rang::principal);
    texte_->setSymbole(symbole, note ? Theme::secondaire : Theme::orange);
    Pile::rangee(this, {}, {texte_});
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

} // namespace Quillet
