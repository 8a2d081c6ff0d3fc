#include "composants/Feuille.h"

#include "composants/Boutons.h"
#include "composants/Place.h"
#include "composants/Theme.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>

namespace Quillet {

Feuille::Feuille(const QString &titre, QWidget *parent) : QDialog(parent)
{
    setWindowTitle(titre);
}

void Feuille::ouvrir()
{
    setAttribute(Qt::WA_DeleteOnClose);
    open();
}

void Feuille::meubler(QWidget *choix, QWidget *page)
{
    QPushButton *fermer = Boutons::deFeuille(QStringLiteral("Fermer"));
    connect(fermer, &QPushButton::clicked, this, &QDialog::reject);
    auto *barre = new QHBoxLayout;
    barre->setContentsMargins(16, 16, 16, 16);
    barre->addWidget(choix);
    barre->addStretch(1);
    barre->addWidget(fermer);
    auto *colonne = new QVBoxLayout(this);
    colonne->setContentsMargins(0, 0, 0, 0);
    colonne->setSpacing(0);
    colonne->addLayout(barre);
    colonne->addWidget(filet(Qt::Horizontal));
    colonne->addWidget(page, 1);
}

void Feuille::prendreLaTaille(QSize taille)
{
    resize(Theme::aLaTaille(taille).boundedTo(Place::surLEcran(this)));
}

// On a button, Return presses it; anywhere else, the sheet's own command.
void Feuille::keyPressEvent(QKeyEvent *evenement)
{
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
