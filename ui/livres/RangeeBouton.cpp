#include "ui/livres/RangeeBouton.h"

#include "composants/BoutonCopier.h"
#include "composants/Boutons.h"
#include "composants/Chiffres.h"
#include "composants/LibelleASymbole.h"
#include "composants/LibelleChiffre.h"
#include "composants/Pile.h"
#include "composants/TailleDuTexte.h"
#include "composants/Theme.h"
#include "model/Format.h"

#include <QApplication>
#include <QPushButton>

namespace Quillet {

namespace {

enum Colonne { destination, actuel, calcule, copie, etat };

constexpr int entreActions = 6;
constexpr int sousLEtat = 5;
constexpr int largeurMinimaleDuNom = 96; // of a destination

QFont policeDuPrix()
{
    return Theme::enGras(QApplication::font(), QFont::Medium);
}

QString texteReporter()
{
    return QStringLiteral("Reporter");
}

QString texteGarder()
{
    return QStringLiteral("Garder");
}

int largeur(const QString &action)
{
    return QFontMetrics(Theme::encadre()).horizontalAdvance(action) + 24;
}

QPushButton *bouton(const QString &action)
{
    QPushButton *bouton = Boutons::deFeuille(action);
    bouton->setFont(Theme::encadre());
    TailleDuTexte::suivre(bouton, [bouton, action] { bouton->setFixedWidth(largeur(action)); });
    return bouton;
}

QString symbole(PrixBouton::Etat etat)
{
    switch (etat) {
    case PrixBouton::Etat::sansPrix:
        return QStringLiteral("minus");
    case PrixBouton::Etat::aJour:
        return QStringLiteral("checkmark.circle");
    case PrixBouton::Etat::garde:
        return QStringLiteral("bookmark");
    case PrixBouton::Etat::aReporter:
        return QStringLiteral("arrow.right");
    }
    Q_UNREACHABLE();
}

LibelleASymbole::Couleur couleur(PrixBouton::Etat etat)
{
    switch (etat) {
    case PrixBouton::Etat::aJour:
        return Theme::accentTexte;
    case PrixBouton::Etat::aReporter:
        return Theme::orange;
    case PrixBouton::Etat::sansPrix:
    case PrixBouton::Etat::garde:
        return Theme::secondaire;
    }
    Q_UNREACHABLE();
}

// Two lines, centred one above the other.
QWidget *empiles(QWidget *ligne, QWidget *dessous, int espace)
{
    return Pile::enColonne({.espace = espace}, {Pile::reste(), ligne, dessous, Pile::reste()});
}

} // namespace

QList<Tableau::Colonne> RangeeBouton::colonnes()
{
    return {{QStringLiteral("Destination"), Qt::AlignLeft, 1},
            {QStringLiteral("Actuel"), Qt::AlignRight},
            {QStringLiteral("Calculé"), Qt::AlignRight},
            {{}}, // its buttons say what they do
            {QStringLiteral("État")}};
}

void RangeeBouton::fixerLesLargeurs(Tableau &tableau)
{
    tableau.setLargeurMinimale(destination, largeurMinimaleDuNom);
    TailleDuTexte::suivre(&tableau, [&tableau] {
        const int prix = Chiffres::largeur(QFontMetrics(policeDuPrix()), QStringLiteral("000,00 €"));
        tableau.setLargeurMinimale(actuel, prix);
        tableau.setLargeurMinimale(calcule, prix);
        tableau.setLargeurMinimale(etat, largeur(texteReporter()) + entreActions + largeur(texteGarder()));
    });
}

RangeeBouton::RangeeBouton(Tableau &tableau)
    : QObject(&tableau),
      destination_(new Libelle({})),
      palier_(new Libelle({}, Libelle::Rang::secondaire)),
      actuel_(new LibelleChiffre),
      calcule_(new LibelleChiffre),
      ecart_(new LibelleChiffre({}, Libelle::Rang::secondaire)),
      copier_(new BoutonCopier),
      etat_(new LibelleASymbole(16, 6)),
      reporter_(bouton(texteReporter())),
      garder_(bouton(texteGarder()))
{
    destination_->setWordWrap(true);
    palier_->setWordWrap(true);
    palier_->setFont(Theme::legende());
    calcule_->setFont(policeDuPrix());
    ecart_->setFont(Theme::legende());
    etat_->setFont(Theme::enGras(etat_->font(), QFont::Medium));
    copier_->setToolTip(QStringLiteral("Copier le prix calculé"));

    QWidget *actions = Pile::enRangee({.espace = entreActions}, {reporter_, garder_, Pile::reste()});
    QWidget *situation = empiles(etat_, actions, sousLEtat);
    // As high as with its buttons: the rows below stand still when a price is reported.
    TailleDuTexte::suivre(etat_, [this, situation] {
        situation->setMinimumHeight(etat_->sizeHint().height() + sousLEtat + reporter_->sizeHint().height());
    });
    tableau.ajouter({empiles(destination_, palier_, 2), Pile::enColonne({}, {Pile::reste(), actuel_, Pile::reste()}),
                     empiles(calcule_, ecart_, 2), copier_, situation});
    // A click reports the price that is read on the row: it must not end an edit that changes it.
    for (QPushButton *action : {reporter_, garder_})
        action->setFocusPolicy(Qt::TabFocus);
    connect(reporter_, &QPushButton::clicked, this, &RangeeBouton::reporter);
    connect(garder_, &QPushButton::clicked, this, &RangeeBouton::garder);
}

void RangeeBouton::montrer(const TextesBoutons::Ligne &ligne)
{
    destination_->setText(ligne.destination);
    palier_->setText(ligne.palier);
    palier_->setVisible(!ligne.palier.isEmpty());
    actuel_->setText(ligne.actuel);
    calcule_->setText(ligne.calcule);
    ecart_->setText(ligne.ecart);
    ecart_->setVisible(!ligne.ecart.isEmpty());
    // A row without a price to copy is read there.
    etat_->setFocusPolicy(ligne.aCopier.isEmpty() ? Qt::TabFocus : Qt::NoFocus);
    etat_->setSymbole(symbole(ligne.etat), couleur(ligne.etat));
    etat_->setRang(ligne.etat == PrixBouton::Etat::aReporter ? Libelle::Rang::principal : Libelle::Rang::secondaire);
    etat_->setText(ligne.etatEnMots);
    copier_->setValeur(ligne.aCopier);
    copier_->setEnabled(!ligne.aCopier.isEmpty());
    reporter_->setVisible(ligne.peutReporter);
    garder_->setVisible(ligne.peutGarder);
    reporter_->parentWidget()->setVisible(ligne.peutReporter);

    // A screen reader hears the whole row with the figure to copy.
    const QString actuel = QStringLiteral("Actuel : %1").arg(Format::dit(ligne.actuel));
    QStringList mots{ligne.destination, ligne.etatEnMots, actuel, ligne.ecart, ligne.palier};
    mots.removeAll(QString());
    const QString enMots = mots.join(QStringLiteral(", "));
    actuel_->setAccessibleName(actuel);
    calcule_->setAccessibleName(QStringLiteral("Calculé : %1").arg(Format::dit(ligne.calcule)));
    copier_->setAccessibleName(ligne.aCopier.isEmpty() ? QStringLiteral("Rien à copier, %1").arg(enMots)
                                                       : QStringLiteral("Copier %1, %2").arg(ligne.calcule, enMots));
    etat_->setAccessibleName(enMots);
    reporter_->setToolTip(QStringLiteral("Le bouton PayPal demande maintenant %1").arg(ligne.calcule));
    reporter_->setAccessibleName(QStringLiteral("Reporter, %1").arg(ligne.destination));
    garder_->setToolTip(
        QStringLiteral("Le bouton PayPal garde son prix, tant que le calcul donne %1").arg(ligne.calcule));
    garder_->setAccessibleName(QStringLiteral("Garder, %1").arg(ligne.destination));
}

bool RangeeBouton::aLeFocus() const
{
    return copier_->hasFocus() || reporter_->hasFocus() || garder_->hasFocus();
}

void RangeeBouton::prendreLeFocus()
{
    copier_->setFocus();
}

} // namespace Quillet
