#include "ui/commande/SectionDestination.h"

#include "composants/Alerte.h"
#include "composants/ChampAPropositions.h"
#include "composants/Choix.h"
#include "composants/Icone.h"
#include "composants/Interrupteur.h"
#include "composants/LecteurDEcran.h"
#include "composants/Libelle.h"
#include "composants/Theme.h"
#include "documents/PaysDeLivraison.h"
#include "model/Commande.h"
#include "textes/TextesPays.h"
#include "textes/TextesRecapitulatif.h"
#include "ui/Raccourcis.h"

#include <QAction>

namespace Quillet {

SectionDestination::SectionDestination(const Donnees &donnees, Commande &commande, QWidget *parent)
    : Section(QStringLiteral("Destination"), {}, parent),
      donnees_(donnees),
      commande_(commande),
      recherche_(new ChampAPropositions([this](const QString &texte) {
          trouves_ = TextesPays::trouves(donnees_.pays, texte);
          QStringList propositions;
          for (const Pays &pays : std::as_const(trouves_))
              propositions.append(TextesPays::proposition(pays, donnees_));
          return propositions;
      })),
      remarque_(new Alerte),
      destination_(new Choix),
      nomComplet_(new Libelle({}, Libelle::Rang::secondaire)),
      horsUE_(new Interrupteur(Theme::bleu())),
      rangeeHorsUE_(new Formulaire::Rangee({}, horsUE_)),
      declaration_(new Libelle({})),
      rangeeDeclaration_(new Formulaire::Rangee(QStringLiteral("Déclaration en douane"), declaration_))
{
    recherche_->setAccessibleName(QStringLiteral("Chercher un pays"));
    recherche_->setInvite(QStringLiteral("Chercher un pays"));
    auto *loupe = recherche_->addAction(Icone::icone(QStringLiteral("magnifyingglass")), QLineEdit::LeadingPosition);
    loupe->setText(QStringLiteral("Aller à la recherche d’un pays"));
    connect(loupe, &QAction::triggered, recherche_, qOverload<>(&QWidget::setFocus));
    Raccourcis::dire(recherche_, Raccourcis::Geste::chercherUnPays);
    Raccourcis::lier(recherche_, Raccourcis::Geste::chercherUnPays,
                     [this] { recherche_->setFocus(Qt::ShortcutFocusReason); });
    proposerLesDestinations();
    nomComplet_->setFont(Theme::encadre());
    nomComplet_->setWordWrap(true);
    rangeeHorsUE_->setDetail(QStringLiteral("hors Union européenne : déclaration en douane"));

    groupe()->ajouter(recherche_);
    groupe()->ajouter(remarque_);
    groupe()->ajouter(new Formulaire::Rangee(QStringLiteral("Envoi vers"), destination_));
    groupe()->ajouter(nomComplet_);
    groupe()->ajouter(rangeeHorsUE_);
    groupe()->ajouter(rangeeDeclaration_);

    connect(recherche_, &QLineEdit::textEdited, this, &SectionDestination::remarquer);
    connect(recherche_, &ChampAPropositions::choisie, this, [this](int rang) { envoyer(trouves_.value(rang)); });
    connect(recherche_, &ChampAPropositions::sansReponse, this, [this](const QString &texte) {
        remarque_->montrer(TextesPays::introuvable(texte));
        emit remarquee(remarque_);
    });
    connect(destination_, &Choix::choisi, &commande_,
            [this](const QString &code) { commande_.setCodeDestination(CodeDestination(code)); });
    connect(horsUE_, &QAbstractButton::toggled, &commande_, &Commande::setHorsUE);
}

void SectionDestination::envoyer(const Pays &pays)
{
    recherche_->renoncer(); // nor can it be undone: Ctrl+Z is the screen's again
    remarquer();
    if (const auto envoyee = PaysDeLivraison::envoyee(commande_.bon(), pays, donnees_)) {
        commande_.adopter(*envoyee);
        LecteurDEcran::annoncer(recherche_, TextesPays::proposition(pays, donnees_));
    } else {
        remarque_->montrer(TextesPays::nonEtabli(pays));
    }
    if (remarque_->isVisible())
        emit remarquee(remarque_);
}

void SectionDestination::proposerLesDestinations()
{
    proposees_ = donnees_.destinations;
    destination_->clear();
    for (const Destination &destination : std::as_const(proposees_))
        destination_->ajouter(destination.libelleCourt, destination.code.texte());
}

void SectionDestination::montrer(const Calcul &calcul)
{
    if (commande_.peutRendre())
        recherche_->renoncer();
    recherche_->setVisible(!donnees_.pays.isEmpty());
    if (proposees_ != donnees_.destinations)
        proposerLesDestinations();
    destination_->montrer(commande_.bon().codeDestination.texte());
    const QString complet = TextesRecapitulatif::destinationComplete(calcul);
    nomComplet_->setText(complet);
    nomComplet_->setVisible(!complet.isEmpty());

    const auto exception = calcul.destination ? calcul.destination->douaneSauf : std::nullopt;
    rangeeHorsUE_->setVisible(exception.has_value());
    if (exception) {
        const QString colis = QStringLiteral("Colis pour %1").arg(*exception);
        rangeeHorsUE_->setTexte(colis);
        horsUE_->setAccessibleName(colis);
    }
    horsUE_->setChecked(commande_.bon().horsUE);

    rangeeDeclaration_->setVisible(calcul.destination.has_value());
    declaration_->setText(TextesRecapitulatif::declaration(calcul));
    remarquer();
}

void SectionDestination::remarquer()
{
    const auto pays = PaysDeLivraison::deLaListe(commande_.bon(), donnees_.pays);
    remarque_->montrer(pays ? pays->remarque.value_or(QString()) : QString());
}

} // namespace Quillet
