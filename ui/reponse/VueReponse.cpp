#include "ui/reponse/VueReponse.h"

#include "composants/Alerte.h"
#include "composants/Defilement.h"
#include "composants/EtatVide.h"
#include "composants/Formulaire.h"
#include "composants/Icone.h"
#include "composants/LigneDeTexte.h"
#include "composants/Pile.h"
#include "composants/TailleDuTexte.h"
#include "composants/Theme.h"
#include "documents/PaysDeLivraison.h"
#include "documents/ReponseType.h"
#include "model/Echec.h"
#include "textes/TextesExemple.h"
#include "textes/TextesReponse.h"
#include "ui/Contexte.h"
#include "ui/reponse/ApercuMessage.h"
#include "ui/reponse/ChoixLangue.h"
#include "ui/reponse/Mail.h"

#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QStackedWidget>

namespace Quillet {

namespace {

constexpr QSize tailleDeLaReponse(960, 680);
constexpr QSize tailleImpossible(420, 260);
constexpr int largeurDeLaSaisie = 380;
constexpr QSize plusPetitMessage(320, 300);

QLineEdit *champ(const QString &nom, const QString &exemple)
{
    auto *champ = new LigneDeTexte;
    champ->setAccessibleName(nom);
    champ->setInvite(exemple);
    return champ;
}

} // namespace

VueReponse::VueReponse(const Contexte &contexte, QWidget *parent)
    : Feuille(QStringLiteral("Réponse à l’acheteur"), parent),
      contexte_(contexte),
      langue_(new ChoixLangue),
      lien_(champ(QStringLiteral("Lien de paiement"), QStringLiteral("https://www.paypal.com/ncp/payment/…"))),
      adresse_(champ(QStringLiteral("E-mail de l’acheteur"), QStringLiteral("prenom.nom@exemple.fr"))),
      lienDouteux_(new Alerte),
      adresseRefusee_(new Alerte),
      exemple_(new Alerte),
      lienAbsent_(new Alerte(QStringLiteral("link"), {}, Alerte::Ton::note)),
      apercu_(new ApercuMessage),
      envoyer_(new QPushButton(Icone::icone(QStringLiteral("envelope")), QStringLiteral("Ouvrir dans Mail"))),
      impossible_(new EtatVide),
      pages_(new QStackedWidget)
{
    pages_->addWidget(Pile::enRangee({.espace = 0}, {saisie(), filet(Qt::Vertical), {message(), 1}}));
    pages_->addWidget(impossible_);
    meubler(langue_, pages_);
    envoyer_->setDefault(true); // only now does it have a sheet to be the default of

    connect(langue_, &ChoixLangue::choisie, this, [this](Langue langue) {
        contexte_.commande.adopter(PaysDeLivraison::ecrite(contexte_.bon(), langue, contexte_.donnees().pays));
    });
    connect(lien_, &QLineEdit::textChanged, this, &VueReponse::actualiser);
    connect(adresse_, &QLineEdit::textChanged, this, &VueReponse::actualiser);
    connect(&contexte_.commande, &Commande::change, this, &VueReponse::actualiser);
    connect(&contexte_.catalogue, &Catalogue::change, this, &VueReponse::actualiser);
    connect(&contexte_.jour, &JourCourant::change, this, &VueReponse::actualiser);
    passerA(reponse() ? Page::reponse : Page::impossible);
    actualiser();
    lien_->setFocus();
}

QWidget *VueReponse::saisie()
{
    auto *coller =
        new Formulaire::Section(QStringLiteral("1. Coller le lien de paiement"),
                                QStringLiteral("Dans PayPal, section « Liens et boutons enregistrés » : cliquez sur "
                                               "« Copier le lien » dans la colonne Action."));
    coller->groupe()->ajouter(Formulaire::seul(lien_));
    coller->groupe()->ajouter(lienDouteux_);
    auto *destinataire =
        new Formulaire::Section(QStringLiteral("2. E-mail de l’acheteur"),
                                QStringLiteral("Facultatif : collé ici, il remplit le destinataire du message "
                                               "dans Mail ; sinon, saisissez-le dans Mail."));
    destinataire->groupe()->ajouter(Formulaire::seul(adresse_));
    destinataire->groupe()->ajouter(adresseRefusee_);

    QWidget *saisie =
        Pile::enColonne({.marges = {16, 20, 16, 20}, .espace = 22}, {coller, destinataire, Pile::reste()});
    saisie->setBackgroundRole(QPalette::AlternateBase);
    auto *defilement = new Defilement;
    defilement->setWidget(saisie);
    TailleDuTexte::suivre(defilement, [defilement] { defilement->setFixedWidth(Theme::aLaTaille(largeurDeLaSaisie)); });
    return defilement;
}

QWidget *VueReponse::message()
{
    connect(envoyer_, &QPushButton::clicked, this, &VueReponse::ouvrirDansMail);

    QWidget *message = Pile::enColonne({.marges = {20, 20, 20, 20}, .espace = 14},
                                       {exemple_, lienAbsent_, {apercu_, 1}, {envoyer_, 0, Qt::AlignLeft}});
    TailleDuTexte::suivre(message, [message] { message->setMinimumSize(Theme::aLaTaille(plusPetitMessage)); });
    return message;
}

std::optional<ReponseType> VueReponse::reponse() const
{
    return ReponseType::de(contexte_.calcul(), contexte_.donnees().reglages, contexte_.bon(), lien_->text());
}

void VueReponse::actualiser()
{
    const auto message = reponse();
    const Page page = message ? Page::reponse : Page::impossible;
    if (pages_->currentIndex() != static_cast<int>(page))
        passerA(page);
    if (!message) {
        impossible_->montrer(QStringLiteral("person.2"), QStringLiteral("Réponse impossible"),
                             TextesReponse::impossible(contexte_.calcul(), contexte_.donnees()));
        return;
    }
    langue_->montrer(message->langue);
    exemple_->montrer(TextesExemple::surLaReponse(contexte_.catalogue.ressources().origine()));
    lienAbsent_->montrer(TextesReponse::lienAbsent(*message));
    lienDouteux_->montrer(TextesReponse::lienDouteux(*message));
    adresseRefusee_->montrer(TextesReponse::adresseRefusee(adresse_->text()));
    apercu_->montrer(*message, TextesReponse::destinataire(adresse_->text()));
}

void VueReponse::passerA(Page page)
{
    pages_->setCurrentIndex(static_cast<int>(page));
    langue_->setVisible(page == Page::reponse);
    // The page that is not shown asks for no room.
    for (int i = 0; i < pages_->count(); ++i) {
        const auto place = i == pages_->currentIndex() ? QSizePolicy::Preferred : QSizePolicy::Ignored;
        pages_->widget(i)->setSizePolicy(place, place);
    }
    prendreLaTaille(page == Page::reponse ? tailleDeLaReponse : tailleImpossible);
}

void VueReponse::ouvrirDansMail()
{
    const auto message = reponse();
    if (!message)
        return;
    // The sheet may have been closed since: over whatever is in front then.
    const auto prevenir = [fenetre = parentWidget(), titre = windowTitle()](const QString &echec) {
        QWidget *devant = QApplication::activeModalWidget();
        auto *boite = new QMessageBox(QMessageBox::Warning, titre, echec, QMessageBox::Ok, devant ? devant : fenetre);
        boite->setAttribute(Qt::WA_DeleteOnClose);
        boite->open();
    };
    try {
        if (Mail::ecrire({adresse_->text(), message->sujet(), message->corps(), message->ligneTotal()}, parentWidget(),
                         prevenir)) {
            compterPourFait();
            emit remise();
        }
    } catch (const Echec &echec) {
        QMessageBox::warning(this, windowTitle(), echec.texte());
    }
}

} // namespace Quillet
