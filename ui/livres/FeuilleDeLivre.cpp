#include "ui/livres/FeuilleDeLivre.h"

#include "composants/Defilement.h"
#include "composants/Pile.h"
#include "model/Catalogue.h"
#include "model/controle/Objections.h"
#include "textes/NomsVendeurs.h"
#include "ui/AlerteRelecture.h"
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
      echec_(new AlerteRelecture(contexte.catalogue)),
      lecture_(this)
{
    lecture_.setSingleShot(true);
    lecture_.setInterval(tempsDeLecture);
    cadrer();
    connect(echec_, &AlerteRelecture::relu, this, &FeuilleDeLivre::cadrer);
    connect(formulaire_, &FormulaireLivre::refuse, &lecture_, qOverload<>(&QTimer::start));
    prendreLaTaille(taille);
}

void FeuilleDeLivre::cadrer()
{
    const Donnees &donnees = contexte_.donnees();
    FormulaireLivre::Cadre cadre;
    cadre.livres = donnees.livres;
    cadre.reperes =
        Objections::reperes(donnees, QDir(contexte_.catalogue.ressources().chemin(QStringLiteral("couvertures"))));
    for (const Vendeur vendeur : donnees.vendeurs())
        cadre.vendeurs.append({vendeur, NomsVendeurs::court(vendeur, donnees)});
    formulaire_->setCadre(cadre);
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
    try {
        geste();
    } catch (const Echec &erreur) {
        echec_->montrer(erreur);
        lecture_.start();
        return false;
    }
    echec_->montrer({});
    return true;
}

} // namespace Quillet
