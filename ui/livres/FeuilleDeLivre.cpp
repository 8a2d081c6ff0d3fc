#include "ui/livres/FeuilleDeLivre.h"

#include "composants/Alerte.h"
#include "composants/Defilement.h"
#include "composants/Pile.h"
#include "model/Catalogue.h"
#include "model/controle/Objections.h"
#include "textes/NomsVendeurs.h"
#include "textes/TextesGestes.h"
#include "ui/Contexte.h"
#include "ui/livres/FormulaireLivre.h"

using namespace std::chrono_literals;

namespace Quillet {

namespace {

constexpr QSize taille(760, 720);
constexpr int marge = 20;
constexpr auto tempsDeLecture = 1s; // of a sentence that says why

} // namespace

FeuilleDeLivre::FeuilleDeLivre(const QString &titre, const Contexte &contexte, QWidget *parent)
    : Feuille(titre, parent),
      contexte_(contexte),
      formulaire_(new FormulaireLivre(contexte.images)),
      echec_(new Alerte),
      lecture_(this)
{
    lecture_.setSingleShot(true);
    lecture_.setInterval(tempsDeLecture);
    const Donnees &donnees = contexte.donnees();
    FormulaireLivre::Cadre cadre;
    cadre.livres = donnees.livres;
    cadre.reperes =
        Objections::reperes(donnees, QDir(contexte.catalogue.ressources().chemin(QStringLiteral("couvertures"))));
    for (const Vendeur vendeur : donnees.vendeurs())
        cadre.vendeurs.append({vendeur, NomsVendeurs::court(vendeur, donnees)});
    formulaire_->setCadre(cadre);
    connect(formulaire_, &FormulaireLivre::refuse, &lecture_, qOverload<>(&QTimer::start));
    prendreLaTaille(taille);
}

QWidget *FeuilleDeLivre::page()
{
    auto *defilement = new Defilement;
    defilement->setWidget(Pile::enColonne({.marges = {marge, 16, marge, marge}}, {formulaire_}));
    echec_->setContentsMargins(marge, 12, marge, 12);
    return Pile::enColonne({.espace = 0}, {echec_, {defilement, 1}});
}

bool FeuilleDeLivre::tenter(const std::function<void()> &geste)
{
    QString echec;
    try {
        geste();
    } catch (const Echec &erreur) {
        echec = TextesGestes::nonEnregistre(erreur);
        lecture_.start();
    }
    echec_->montrer(echec);
    return echec.isEmpty();
}

} // namespace Quillet
