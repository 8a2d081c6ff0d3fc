#include "ui/echanges/FeuilleCopies.h"

#include "composants/Alerte.h"
#include "composants/Attente.h"
#include "composants/Boutons.h"
#include "composants/Defilement.h"
#include "composants/EtatVide.h"
#include "composants/Formulaire.h"
#include "composants/Libelle.h"
#include "composants/Pile.h"
#include "echanges/Comparaison.h"
#include "echanges/Reprise.h"
#include "textes/TextesReprise.h"
#include "ui/Contexte.h"
#include "ui/echanges/Echanges.h"

#include <QPushButton>

namespace Quillet {

namespace {

constexpr QSize taille(520, 560);
constexpr int marge = 24;

} // namespace

FeuilleCopies::FeuilleCopies(const Contexte &contexte, const QString &echec, QWidget *parent)
    : Feuille(QStringLiteral("Revenir à une copie"), parent), contexte_(contexte)
{
    const QList<Vue> vues = lire();
    auto *explication = Libelle::note(TextesReprise::explicationDesCopies());
    auto *liste = new Formulaire::Section(QStringLiteral("Copies gardées"));
    for (const Vue &vue : vues)
        liste->groupe()->ajouter(rangee(vue));
    liste->setVisible(!vues.isEmpty());
    auto *aucune =
        new EtatVide(QStringLiteral("arrow.counterclockwise"), QStringLiteral("Aucune copie"),
                     QStringLiteral("La première se fera d’elle-même, dès que vous aurez vos propres livres."));
    aucune->setVisible(vues.isEmpty());
    auto *defilement = new Defilement;
    defilement->setWidget(Pile::enColonne({.marges = {marge, marge, marge, marge}, .espace = 16},
                                          {Libelle::titreDeSection(windowTitle()),
                                           explication,
                                           new Alerte(TextesReprise::copieManquee(echec)),
                                           liste,
                                           {aucune, 1},
                                           Pile::reste()}));
    QPushButton *fermer = Boutons::deFeuille(QStringLiteral("Fermer"));
    connect(fermer, &QPushButton::clicked, this, &QDialog::reject);
    QBoxLayout *pied = Pile::rangee({.marges = {marge, 14, marge, 16}}, {Pile::reste(), fermer});
    Pile::colonne(this, {.espace = 0}, {{defilement, 1}, filet(Qt::Horizontal), pied});
    prendreLaTaille(taille);
}

QList<FeuilleCopies::Vue> FeuilleCopies::lire()
{
    QList<Vue> vues;
    const Demeure demeure = Demeure::de(contexte_.catalogue, contexte_.preferences);
    const QDate jour = contexte_.jour.aujourdhui();
    Attente::jusquAuBout(parentWidget(), QStringLiteral("Lecture des copies…"), [&, ici = contexte_.donnees()] {
        for (const Copie &copie : Copies(demeure).liste())
            try {
                const auto reprise = Reprise::regarder(copie.chemin, demeure, jour);
                vues.append({copie, TextesReprise::resume(Comparaison::de(ici, reprise->donnees()))});
            } catch (const Echec &erreur) {
                vues.append({copie, erreur.texte(), false});
            }
    });
    return vues;
}

QWidget *FeuilleCopies::rangee(const Vue &vue)
{
    QPushButton *voir = Boutons::deFeuille(QStringLiteral("Voir…"));
    const QString nom = TextesReprise::copie(vue.copie);
    voir->setAccessibleName(QStringLiteral("Voir la copie : %1").arg(nom));
    voir->setEnabled(vue.lisible);
    connect(voir, &QPushButton::clicked, this, [this, copie = vue.copie] { montrer(copie); });
    auto *rangee = new Formulaire::Rangee(nom, voir);
    rangee->setDetail(vue.resume);
    return rangee;
}

void FeuilleCopies::montrer(const Copie &copie)
{
    if (const QDialog *feuille =
            Echanges::montrer(contexte_, copie.chemin, QStringLiteral("Reprendre cette copie"), this))
        connect(feuille, &QDialog::accepted, this, &QDialog::accept);
}

} // namespace Quillet
