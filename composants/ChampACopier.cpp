#include "composants/ChampACopier.h"

#include "composants/BoutonCopier.h"
#include "composants/LibelleASymbole.h"
#include "composants/Pile.h"
#include "composants/TailleDuTexte.h"
#include "composants/Theme.h"

namespace Quillet {

ChampACopier::ChampACopier(const QString &titre, std::optional<int> colonneDuTitre, QWidget *parent)
    : QWidget(parent), titre_(titre), affichage_(new Libelle({})), bouton_(new BoutonCopier)
{
    auto *titreAffiche = new Libelle(titre, Libelle::Rang::secondaire);
    titreAffiche->setFont(Theme::encadre());
    titreAffiche->setBuddy(affichage_);
    affichage_->setWordWrap(true);
    affichage_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    affichage_->setFocusPolicy(Qt::ClickFocus);

    if (colonneDuTitre) {
        titreAffiche->setWordWrap(true);
        TailleDuTexte::suivre(titreAffiche, [titreAffiche, largeur = *colonneDuTitre] {
            titreAffiche->setFixedWidth(Theme::aLaTaille(largeur));
        });
    }
    QBoxLayout *textes = colonneDuTitre ? Pile::rangee({.espace = 12}, {titreAffiche, {affichage_, 1}})
                                        : Pile::colonne({.espace = 2}, {avecCoche(titreAffiche), affichage_});
    Pile::rangee(this, {.espace = 8}, {{textes, 1}, {bouton_, 0, Qt::AlignVCenter}});
    connect(bouton_, &BoutonCopier::copie, this, &ChampACopier::copie);
}

QBoxLayout *ChampACopier::avecCoche(QWidget *titre)
{
    coche_ = new LibelleASymbole(13, 4);
    coche_->setFont(Theme::legende());
    coche_->setRang(Libelle::Rang::secondaire);
    coche_->setSymbole(QStringLiteral("checkmark.circle"), Theme::secondaire);
    coche_->setText(QStringLiteral("copié"));
    coche_->hide();
    return Pile::rangee({.espace = 8}, {titre, coche_, Pile::reste()});
}

void ChampACopier::montrer(const QString &valeur, const QString &affichage)
{
    valeur_ = valeur;
    bouton_->setValeur(valeur);
    const QString affiche = affichage.isEmpty() ? valeur : affichage;
    affichage_->setText(affiche);
    bouton_->setToolTip(QStringLiteral("Copier ") + titre_);
    // The button is all that the keyboard reaches. Without a description of its own, its tooltip would be read.
    bouton_->setAccessibleName(QStringLiteral("Copier %1").arg(titre_.isEmpty() ? valeur : titre_));
    bouton_->setAccessibleDescription(titre_.isEmpty() ? QStringLiteral("suite") : affiche);
}

void ChampACopier::marquer(bool copie)
{
    if (coche_)
        coche_->setVisible(copie);
}

void ChampACopier::copier()
{
    bouton_->copier(QStringLiteral("Copié : %1").arg(titre_));
}

} // namespace Quillet
