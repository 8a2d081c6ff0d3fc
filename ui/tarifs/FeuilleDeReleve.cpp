#include "ui/tarifs/FeuilleDeReleve.h"

#include "composants/Alerte.h"
#include "composants/Boutons.h"
#include "composants/Pile.h"
#include "model/Fichier.h"
#include "textes/TextesReleves.h"

#include <QMessageBox>
#include <QPushButton>

namespace Quillet {

namespace {

constexpr int marge = 24;

} // namespace

void FeuilleDeReleve::composer(QWidget *page, const Accord &accord)
{
    auto *erreur = new Alerte;
    QPushButton *autre = Boutons::deFeuille(accord.sansEcart ? fermer() : plusTard());
    auto *garder = new QPushButton(accord.bouton);
    connect(autre, &QPushButton::clicked, this, &QDialog::reject);
    connect(garder, &QPushButton::clicked, this, [this, erreur, accord] {
        if (!confirme(accord))
            return;
        if (!accord.tientEncore()) {
            erreur->montrer(QStringLiteral("La page a été relue depuis et dit autre chose : fermez cette feuille, puis "
                                           "rouvrez-la."));
            return;
        }
        try {
            accord.accepter();
            accept();
        } catch (const ErreurStockage &echec) {
            erreur->montrer(echec.texte());
        }
    });

    QBoxLayout *boutons = Pile::rangee({}, {Pile::reste(), autre, garder});
    QBoxLayout *pied = Pile::colonne({.marges = {marge, 14, marge, 16}, .espace = 10}, {erreur, boutons});
    Pile::colonne(this, {.espace = 0}, {{page, 1}, filet(Qt::Horizontal), pied});
    (accord.sansEcart ? autre : garder)->setDefault(true);
}

void FeuilleDeReleve::composerVide(QWidget *page)
{
    QPushButton *bouton = Boutons::deFeuille(fermer());
    connect(bouton, &QPushButton::clicked, this, &QDialog::reject);
    Pile::colonne(this, {.marges = {marge, marge, marge, marge}}, {{page, 1}, {bouton, 0, Qt::AlignHCenter}});
}

bool FeuilleDeReleve::confirme(const Accord &accord)
{
    if (accord.reserves.isEmpty())
        return true;
    QMessageBox question(QMessageBox::Warning, windowTitle(), accord.question, QMessageBox::NoButton, this);
    question.setInformativeText(TextesReleves::enumeration(accord.reserves));
    const QPushButton *garder = question.addButton(QStringLiteral("Enregistrer quand même"), QMessageBox::AcceptRole);
    question.setDefaultButton(question.addButton(QStringLiteral("Ne pas enregistrer"), QMessageBox::RejectRole));
    question.exec();
    return question.clickedButton() == garder;
}

} // namespace Quillet
