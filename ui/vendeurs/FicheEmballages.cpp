#include "ui/vendeurs/FicheEmballages.h"

#include "composants/Alerte.h"
#include "composants/Boutons.h"
#include "composants/ChampDeFiche.h"
#include "composants/Choix.h"
#include "composants/Icone.h"
#include "composants/Libelle.h"
#include "composants/Pile.h"
#include "composants/TailleDuTexte.h"
#include "model/BonDeCommande.h"
#include "model/EditionReglages.h"
#include "model/Saisie.h"

#include <QPushButton>
#include <QToolButton>

namespace Quillet {

namespace {

const QString liste = QStringLiteral("emballages");

QToolButton *bouton(const QString &symbole)
{
    auto *bouton = new QToolButton;
    bouton->setIcon(Icone::icone(symbole));
    bouton->setAutoRaise(true);
    bouton->setFocusPolicy(Qt::StrongFocus);
    return bouton;
}

void nommer(QToolButton *bouton, const QString &nom)
{
    bouton->setAccessibleName(nom);
    bouton->setToolTip(nom);
}

QString chemin(qsizetype rang, const char *cle)
{
    return QStringLiteral("%1[%2].%3").arg(liste).arg(rang).arg(QLatin1String(cle));
}

ChampsDeReglages::Champ leNom(qsizetype rang)
{
    return {.chemin = chemin(rang, "nom"),
            .lire = [rang](const Reglages &reglages) { return reglages.emballages.value(rang).nom; },
            .poser =
                [rang](Reglages &reglages, const QString &texte) {
                    if (rang < reglages.emballages.size())
                        reglages = EditionReglages::emballageRenomme(reglages, rang, texte.trimmed());
                    return QString();
                },
            .geste =
                [rang](const Reglages &avant) {
                    return QStringLiteral("nom de « %1 »").arg(avant.emballages.value(rang).nom);
                }};
}

ChampsDeReglages::Champ lePoids(qsizetype rang)
{
    return {.chemin = chemin(rang, "poids"),
            .lire = [rang](const Reglages &reglages) { return Saisie::ecrit(reglages.emballages.value(rang).poids); },
            .poser = [rang](Reglages &reglages, const QString &texte) -> QString {
                const auto lecture = Saisie::poids(texte);
                if (const auto *refus = std::get_if<Saisie::Refus>(&lecture))
                    return refus->raison;
                const auto poids = std::get<std::optional<Grammes>>(lecture);
                if (!poids)
                    return QStringLiteral("Poids à remplir, en grammes.");
                if (rang < reglages.emballages.size())
                    reglages.emballages[rang].poids = *poids;
                return {};
            },
            .geste =
                [rang](const Reglages &avant) {
                    return QStringLiteral("poids de « %1 »").arg(avant.emballages.value(rang).nom);
                }};
}

} // namespace

FicheEmballages::FicheEmballages(const EcritureDesReglages &ecriture, QWidget *parent)
    : Section(QStringLiteral("Emballages"),
              QStringLiteral("Le poids du premier compte dans les prix des boutons PayPal."), parent),
      champs_(ecriture),
      liste_(Pile::enColonne({.espace = 8}, {})),
      echec_(new Alerte),
      ajouter_(Boutons::deFeuille(QStringLiteral("Ajouter un emballage"), QStringLiteral("plus"))),
      deDepart_(new Choix)
{
    groupe()->ajouter(liste_);
    groupe()->ajouter(Pile::enColonne({.espace = 8}, {{ajouter_, 0, Qt::AlignLeft}, echec_}));
    auto *depart = new Formulaire::Rangee(QStringLiteral("Une nouvelle commande commence par"), deDepart_);
    groupe()->ajouter(depart);

    connect(ajouter_, &QPushButton::clicked, this, [this] {
        const Reglages apres = EditionReglages::avecEmballage(champs_.reglages());
        ecrire(apres, QStringLiteral("ajout d’un emballage"));
        if (rangees_.size() == apres.emballages.size()) {
            rangees_.last().nom->setFocus();
            rangees_.last().nom->toutPrendre();
        }
    });
    connect(deDepart_, &Choix::choisi, this, [this](const QString &nom) {
        Reglages apres = champs_.reglages();
        apres.emballageDeDepart = nom;
        ecrire(apres, QStringLiteral("emballage d’une nouvelle commande"));
    });
    montrer();
}

FicheEmballages::Rangee FicheEmballages::creer(qsizetype rang)
{
    Rangee rangee{.rangee = nullptr,
                  .nom = new ChampDeFiche({}),
                  .poids = new ChampDeFiche({}),
                  .monter = bouton(QStringLiteral("chevron.up")),
                  .descendre = bouton(QStringLiteral("chevron.down")),
                  .retirer = bouton(QStringLiteral("xmark"))};
    rangee.nom->setNomDit(QStringLiteral("Nom de l’emballage %1").arg(rang + 1));
    rangee.poids->setNomDit(QStringLiteral("Poids de l’emballage %1, en grammes").arg(rang + 1));
    rangee.poids->accoler(new Libelle(QStringLiteral("g"), Libelle::Rang::secondaire));
    TailleDuTexte::suivre(rangee.poids, [poids = rangee.poids] {
        poids->setFixedWidth(poids->fontMetrics().horizontalAdvance(QStringLiteral("99 999 g")) + 48);
    });
    champs_.lier(rangee.nom, leNom(rang));
    champs_.lier(rangee.poids, lePoids(rang));
    connect(rangee.monter, &QAbstractButton::clicked, this, [this, rang] { deplacer(rang, -1); });
    connect(rangee.descendre, &QAbstractButton::clicked, this, [this, rang] { deplacer(rang, 1); });
    connect(rangee.retirer, &QAbstractButton::clicked, this, [this, rang] {
        const Reglages &avant = champs_.reglages();
        ecrire(EditionReglages::sansEmballage(avant, rang),
               QStringLiteral("retrait de « %1 »").arg(avant.emballages[rang].nom));
    });
    QBoxLayout *ligne =
        Pile::rangee({.espace = 6}, {{rangee.nom, 1}, rangee.poids, rangee.monter, rangee.descendre, rangee.retirer});
    rangee.rangee = Pile::enColonne({.espace = 4}, {ligne, rangee.nom->raison(), rangee.poids->raison()});
    return rangee;
}

void FicheEmballages::montrer()
{
    echec_->montrer({});
    const Reglages &reglages = champs_.reglages();
    const QList<Emballage> &emballages = reglages.emballages;
    while (rangees_.size() > emballages.size()) {
        const Rangee derniere = rangees_.takeLast();
        if (derniere.rangee->isAncestorOf(window()->focusWidget()))
            (rangees_.isEmpty() ? static_cast<QWidget *>(ajouter_) : rangees_.last().retirer)->setFocus();
        derniere.rangee->hide();
        derniere.rangee->deleteLater(); // it may hold the button that was pressed
    }
    champs_.montrer();
    while (rangees_.size() < emballages.size()) {
        rangees_.append(creer(rangees_.size()));
        liste_->layout()->addWidget(rangees_.last().rangee);
        rangees_.last().rangee->show(); // now: a layout would show it one turn of the event loop later
    }
    for (qsizetype rang = 0; rang < rangees_.size(); ++rang) {
        const QString &nom = emballages[rang].nom;
        nommer(rangees_[rang].monter, QStringLiteral("Monter « %1 »").arg(nom));
        nommer(rangees_[rang].descendre, QStringLiteral("Descendre « %1 »").arg(nom));
        nommer(rangees_[rang].retirer, QStringLiteral("Retirer « %1 »").arg(nom));
        rangees_[rang].monter->setEnabled(rang > 0);
        rangees_[rang].descendre->setEnabled(rang < rangees_.size() - 1);
    }
    deDepart_->clear();
    for (const Emballage &emballage : emballages)
        deDepart_->ajouter(emballage.nom, emballage.nom);
    deDepart_->ajouter(BonDeCommande::autrePoids(), BonDeCommande::autrePoids());
    deDepart_->montrer(BonDeCommande::emballageDeDepart(reglages));
}

ChampDeFiche *FicheEmballages::objecter(const Objections::ParChamp &objections)
{
    ChampDeFiche *premier = champs_.objecter(objections);
    if (!premier)
        echec_->montrer(Objections::auChamp(objections, liste));
    return premier;
}

void FicheEmballages::deplacer(qsizetype rang, qsizetype pas)
{
    const Reglages &avant = champs_.reglages();
    const QString geste = QStringLiteral("place de « %1 »").arg(avant.emballages[rang].nom);
    ecrire(EditionReglages::emballageDeplace(avant, rang, pas), geste);
    const Rangee &ici = rangees_[std::clamp<qsizetype>(rang + pas, 0, rangees_.size() - 1)];
    QToolButton *suite = pas < 0 ? ici.monter : ici.descendre; // to go on, as far as it goes
    (suite->isEnabled() ? suite : pas < 0 ? ici.descendre : ici.monter)->setFocus();
}

void FicheEmballages::ecrire(const Reglages &apres, const QString &geste)
{
    const QString refus = champs_.ecrire(apres, liste, geste);
    montrer();
    echec_->montrer(refus);
}

void FicheEmballages::prendreLeFocus()
{
    (rangees_.isEmpty() ? static_cast<QWidget *>(ajouter_) : rangees_.first().nom)->setFocus();
}

} // namespace Quillet
