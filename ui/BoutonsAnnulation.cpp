#include "ui/BoutonsAnnulation.h"

#include "composants/Icone.h"
#include "composants/Pile.h"
#include "model/Historique.h"
#include "ui/Raccourcis.h"

#include <QAction>
#include <QToolButton>

namespace Quillet {

namespace {

// The button in words, with what it would act on; nothing to act on disables it.
void nommer(QToolButton *bouton, const QString &nom, const QString &geste)
{
    QAction *action = bouton->defaultAction();
    const QString texte = geste.isEmpty() ? nom : QStringLiteral("%1 : %2").arg(nom, geste);
    action->setEnabled(!geste.isEmpty());
    action->setToolTip(QStringLiteral("%1 (%2)").arg(texte, action->shortcut().toString(QKeySequence::NativeText)));
    bouton->setAccessibleName(texte);
}

} // namespace

BoutonsAnnulation::BoutonsAnnulation(const Historique &historique, QWidget *page)
    : historique_(historique),
      annuler_(creer(QStringLiteral("arrow.uturn.backward"), Raccourcis::touches(Raccourcis::Geste::annuler), page)),
      retablir_(creer(QStringLiteral("arrow.uturn.forward"), Raccourcis::touches(Raccourcis::Geste::retablir), page))
{
    Pile::rangee(this, {}, {annuler_, retablir_});
    connect(annuler_->defaultAction(), &QAction::triggered, this, &BoutonsAnnulation::annuler);
    connect(retablir_->defaultAction(), &QAction::triggered, this, &BoutonsAnnulation::retablir);
    connect(&historique, &Historique::change, this, &BoutonsAnnulation::actualiser);
    actualiser();
}

QToolButton *BoutonsAnnulation::creer(const QString &symbole, const QList<QKeySequence> &touches, QWidget *page)
{
    auto *action = new QAction(Icone::icone(symbole), {}, this);
    action->setShortcuts(touches);
    page->addAction(action);
    auto *bouton = new QToolButton;
    bouton->setDefaultAction(action);
    bouton->setAutoRaise(true);
    bouton->setFocusPolicy(Qt::StrongFocus);
    return bouton;
}

// A disabled button would hand the focus to a neighbour that has nothing to do with it.
void BoutonsAnnulation::actualiser()
{
    for (const QToolButton *bouton : {annuler_, retablir_})
        bouton->defaultAction()->setEnabled(true);
    if (annuler_->hasFocus() && historique_.aAnnuler().isEmpty())
        retablir_->setFocus();
    else if (retablir_->hasFocus() && historique_.aRetablir().isEmpty())
        annuler_->setFocus();
    nommer(annuler_, QStringLiteral("Annuler"), historique_.aAnnuler());
    nommer(retablir_, QStringLiteral("Rétablir"), historique_.aRetablir());
}

} // namespace Quillet
