#include "ui/commun/Feuille.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

Feuille::Feuille(const QString &titre, QWidget *parent)
    : QDialog(parent), rangee_(new QHBoxLayout), colonne_(new QVBoxLayout(this))
{
    setWindowTitle(titre);
    rangee_->setContentsMargins(16, 16, 16, 16);
    colonne_->setContentsMargins(0, 0, 0, 0);
    colonne_->setSpacing(0);
    colonne_->addLayout(rangee_);
    colonne_->addWidget(filet(Qt::Horizontal));
}

void Feuille::ouvrir(Feuille *feuille)
{
    feuille->setAttribute(Qt::WA_DeleteOnClose);
    feuille->open();
}

void Feuille::meubler(QWidget *choix, QWidget *page)
{
    auto *fermer = new QPushButton(tr("Fermer"));
    fermer->setAutoDefault(false); // Return is for the sheet's own command
    connect(fermer, &QPushButton::clicked, this, &QDialog::reject);
    rangee_->addWidget(choix);
    rangee_->addStretch(1);
    rangee_->addWidget(fermer);
    colonne_->addWidget(page, 1);
}

void Feuille::prendreLaTaille(QSize taille)
{
    resize(taille.boundedTo(screen()->availableSize()));
}

QWidget *Feuille::filet(Qt::Orientation sens)
{
    auto *filet = new QWidget;
    sens == Qt::Horizontal ? filet->setFixedHeight(1) : filet->setFixedWidth(1);
    filet->setAutoFillBackground(true);
    filet->setBackgroundRole(QPalette::Mid);
    return filet;
}
