#include "composants/Feuille.h"

#include "composants/Boutons.h"
#include "composants/Pile.h"
#include "composants/Place.h"
#include "composants/Theme.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QThread>

#include <algorithm>

namespace Quillet {

namespace {

QString texteDe(const QWidget *champ)
{
    if (const auto *ligne = qobject_cast<const QLineEdit *>(champ))
        return ligne->text();
    const auto *zone = qobject_cast<const QPlainTextEdit *>(champ);
    return zone ? zone->toPlainText() : QString();
}

} // namespace

Feuille::Feuille(const QString &titre, QWidget *parent) : QDialog(parent)
{
    setWindowTitle(titre);
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget *, const QWidget *ici) {
        if (!ici || ici == champ_ || (ici != this && !isAncestorOf(ici)))
            return; // back from another window, nothing has begun anew
        champ_ = ici;
        avant_ = texteDe(ici);
    });
}

void Feuille::compterPourFait()
{
    avant_ = texteDe(focusWidget());
}

bool Feuille::aTape() const
{
    const QString texte = texteDe(focusWidget());
    return !texte.isEmpty() && texte != avant_;
}

void Feuille::ouvrir()
{
    boucles_ = std::min(1, QThread::currentThread()->loopLevel());
    connect(this, &QDialog::finished, this, &Feuille::finir);
    open();
}

// A reader can press what a dialog above keeps from hand and keys.
void Feuille::done(int resultat)
{
    for (auto *dialogue : findChildren<QDialog *>())
        if (dialogue->isVisible())
            dialogue->reject();
    QDialog::done(resultat);
}

// Not while a dialog that it opened waits on the stack, which still needs it. Qt tells of no loop that ends, but a loop
// that goes on below has seen it end.
void Feuille::finir()
{
    if (QThread::currentThread()->loopLevel() > boucles_)
        connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, this, &Feuille::finir,
                Qt::UniqueConnection);
    else
        deleteLater();
}

void Feuille::meubler(QWidget *choix, QWidget *page)
{
    QPushButton *fermer = Boutons::deFeuille(QStringLiteral("Fermer"));
    connect(fermer, &QPushButton::clicked, this, &QDialog::reject);
    QBoxLayout *barre = Pile::rangee({.marges = {16, 16, 16, 16}}, {choix, Pile::reste(), fermer});
    Pile::colonne(this, {.espace = 0}, {barre, filet(Qt::Horizontal), {page, 1}});
}

void Feuille::prendreLaTaille(QSize taille)
{
    resize(Theme::aLaTaille(taille).boundedTo(Place::surLEcran(this)));
}

// Escape first leaves a field in which something was typed. On a button, Return presses it; anywhere else, the sheet's
// own command.
void Feuille::keyPressEvent(QKeyEvent *evenement)
{
    if (evenement->key() == Qt::Key_Escape && aTape()) {
        setFocus();
        return;
    }
    auto *bouton = qobject_cast<QPushButton *>(focusWidget());
    if (bouton && (evenement->key() == Qt::Key_Return || evenement->key() == Qt::Key_Enter))
        bouton->click();
    else
        QDialog::keyPressEvent(evenement);
}

QWidget *Feuille::filet(Qt::Orientation sens)
{
    auto *filet = new QWidget;
    sens == Qt::Horizontal ? filet->setFixedHeight(1) : filet->setFixedWidth(1);
    filet->setAutoFillBackground(true);
    filet->setBackgroundRole(QPalette::Mid);
    return filet;
}

} // namespace Quillet
