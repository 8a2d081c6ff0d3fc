#include "ui/tarifs/FeuilleDeReleve.h"

#include "composants/Alerte.h"
#include "composants/Boutons.h"
#include "composants/Pile.h"
#include "model/Fichier.h"

#include <QPushButton>

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

    QBoxLayout *boutons = Pile::rangee({}, {Pile::reste(), plusTard, garder});
    QBoxLayout *pied = Pile::colonne({.marges = {marge, 14, marge, 16}, .espace = 10}, {erreur, boutons});
    Pile::colonne(this, {.espace = 0}, {{page, 1}, filet(Qt::Horizontal), pied});
    garder->setDefault(true);
}

void FeuilleDeReleve::composerVide(QWidget *page)
{
    QPushButton *fermer = Boutons::deFeuille(QStringLiteral("Fermer"));
    connect(fermer, &QPushButton::clicked, this, &QDialog::reject);
    Pile::colonne(this, {.marges = {marge, marge, marge, marge}}, {{page, 1}, {fermer, 0, Qt::AlignHCenter}});
}

} // namespace Quillet
