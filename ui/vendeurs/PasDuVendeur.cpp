#include "ui/vendeurs/PasDuVendeur.h"

#include "composants/Boutons.h"
#include "composants/ChampDeFiche.h"
#include "composants/Pile.h"
#include "textes/TextesReglages.h"
#include "ui/vendeurs/FicheVendeur.h"

#include <QPushButton>

#include <utility>

namespace Quillet {

PasDuVendeur::PasDuVendeur(const EcritureDesReglages &ecriture, QDate jour, const QMap<Vendeur, QString> &gardees,
                           QWidget *parent)
    : QWidget(parent),
      ecriture_(ecriture),
      jour_(jour),
      ajouter_(Boutons::deFeuille(QStringLiteral("Nous sommes deux à vendre"), QStringLiteral("plus"))),
      retirer_(Boutons::deFeuille(QStringLiteral("Retirer le second vendeur")))
{
    QBoxLayout *colonne = Pile::colonne(this, {.espace = 22});
    for (const Vendeur vendeur : tous<Vendeur>) {
        const QString titre = TextesReglages::titre(vendeur);
        Fiche fiche{.vendeur = new FicheVendeur(titre, vendeur, ecriture),
                    .facture = new ChampDeFiche(QStringLiteral("Dernière facture")),
                    .gardee = gardees.value(vendeur)};
        if (!TextesReglages::derniereFactureRefusee(fiche.gardee, jour).isEmpty())
            fiche.gardee.clear(); // a series of another year ends by itself
        fiche.facture->montrer(fiche.gardee);
        fiche.facture->setNomDit(QStringLiteral("Dernière facture, %1").arg(titre.left(1).toLower() + titre.mid(1)));
        connect(fiche.facture, &ChampDeFiche::saisi, this, [this, fiche] { verifierLaFacture(fiche); });
        verifierLaFacture(fiche);
        fiche.vendeur->groupe()->ajouter(fiche.facture);
        fiches_.insert(vendeur, fiche);
        colonne->addWidget(fiche.vendeur);
    }
    colonne->addWidget(ajouter_, 0, Qt::AlignLeft);
    colonne->addWidget(retirer_, 0, Qt::AlignLeft);
    connect(ajouter_, &QPushButton::clicked, this, [this] {
        emit deux(true);
        fiches_.last().vendeur->prendreLeFocus();
    });
    connect(retirer_, &QPushButton::clicked, this, [this] {
        fiches_.first().vendeur->prendreLeFocus(); // before this button goes
        emit deux(false);
    });
    montrer();
}

void PasDuVendeur::montrer()
{
    const Reglages &reglages = ecriture_.lire();
    for (auto fiche = fiches_.begin(); fiche != fiches_.end(); ++fiche) {
        fiche->vendeur->montrer();
        fiche->vendeur->setVisible(reglages.identite(fiche.key()).has_value());
    }
    ajouter_->setVisible(reglages.vendeurs.size() == 1);
    retirer_->setVisible(reglages.vendeurs.size() > 1);
}

void PasDuVendeur::verifierLaFacture(const Fiche &fiche)
{
    const QString numero = fiche.facture->texte().trimmed();
    fiche.facture->montrer(numero);
    fiche.facture->setAide(TextesReglages::prochaineFacture(numero, jour_));
    fiche.facture->objecter(TextesReglages::derniereFactureRefusee(numero, jour_));
}

void PasDuVendeur::conclure()
{
    for (const Fiche &fiche : std::as_const(fiches_)) {
        fiche.vendeur->conclure();
        fiche.facture->conclure();
    }
}

QWidget *PasDuVendeur::verifier(const Objections::ParChamp &objections)
{
    const Reglages &reglages = ecriture_.lire();
    for (auto fiche = fiches_.begin(); fiche != fiches_.end(); ++fiche) {
        if (!reglages.identite(fiche.key()))
            continue;
        if (QWidget *faux = fiche->vendeur->objecter(objections))
            return faux;
        if (fiche->facture->estRefuse())
            return fiche->facture;
    }
    return nullptr;
}

void PasDuVendeur::prendreLeFocus()
{
    fiches_.first().vendeur->prendreLeFocus();
}

QMap<Vendeur, QString> PasDuVendeur::autresDernieresFactures() const
{
    QMap<Vendeur, QString> factures;
    for (auto fiche = fiches_.begin(); fiche != fiches_.end(); ++fiche)
        if (ecriture_.lire().identite(fiche.key()) && fiche->facture->texte() != fiche->gardee)
            factures.insert(fiche.key(), fiche->facture->texte());
    return factures;
}

} // namespace Quillet
