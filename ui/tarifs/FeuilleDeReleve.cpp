#include "ui/tarifs/FeuilleDeReleve.h"

#include "composants/Alerte.h"
#include "composants/Boutons.h"
#include "model/Fichier.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace Quillet {

namespace {

constexpr int marge = 24;

} // namespace

void FeuilleDeReleve::composer(QWidget *page, const QString &enregistrer, const std::function<void()> &accepter)
{
    auto *erreur = new Alerte;
    QPushButton *plusTard = Boutons::deFeuille(QStringLiteral("Plus tard"));
    auto *garder = new QPushButton(enregistrer);
    connect(plusTard, &QPushButton::clicked, this, &QDialog::reject);
    connect(garder, &QPushButton::clicked, this, [this, erreur, accepter] {
        try {
            accepter();
            accept();
        } catch (const ErreurStockage &echec) {
            erreur->montrer(echec.texte());
        }
    });

    auto *boutons = new QHBoxLayout;
    boutons->addStretch(1);
    boutons->addWidget(plusTard);
    boutons->addWidget(garder);
    auto *pied = new QVBoxLayout;
    pied->setContentsMargins(marge, 14, marge, 16);
    pied->setSpacing(10);
    pied->addWidget(erreur);
    pied->addLayout(boutons);
    auto *colonne = new QVBoxLayout(this);
    colonne->setContentsMargins(0, 0, 0, 0);
    colonne->setSpacing(0);
    colonne->addWidget(page, 1);
    colonne->addWidget(filet(Qt::Horizontal));
    colonne->addLayout(pied);
    garder->setDefault(true);
}

void FeuilleDeReleve::composerVide(QWidget *page)
{
    QPushButton *fermer = Boutons::deFeuille(QStringLiteral("Fermer"));
    connect(fermer, &QPushButton::clicked, this, &QDialog::reject);
    auto *colonne = new QVBoxLayout(this);
    colonne->setContentsMargins(marge, marge, marge, marge);
    colonne->addWidget(page, 1);
    colonne->addWidget(fermer, 0, Qt::AlignHCenter);
}

} // namespace Quillet
