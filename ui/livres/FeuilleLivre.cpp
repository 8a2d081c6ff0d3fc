#include "ui/livres/FeuilleLivre.h"

#include "composants/Boutons.h"
#include "composants/Pile.h"
#include "model/Catalogue.h"
#include "model/EditionLivres.h"
#include "model/Historique.h"
#include "textes/TextesDonnees.h"
#include "textes/TextesGestes.h"
#include "ui/AlerteRelecture.h"
#include "ui/BoutonsAnnulation.h"
#include "ui/Contexte.h"
#include "ui/Raccourcis.h"
#include "ui/livres/FormulaireLivre.h"
#include "ui/livres/PoseDeCouverture.h"

#include <QPushButton>

#include <algorithm>
#include <utility>

namespace Quillet {

FeuilleLivre::FeuilleLivre(const Contexte &contexte, qint64 id, const QList<qint64> &ordre, QWidget *parent)
    : FeuilleDeLivre({}, contexte, parent), id_(id), ordre_(ordre)
{
    auto *annulation = new BoutonsAnnulation(contexte.historique, this);
    QPushButton *precedent = Boutons::deFeuille(QStringLiteral("Livre précédent"));
    QPushButton *suivant = Boutons::deFeuille(QStringLiteral("Livre suivant"));
    Raccourcis::presser(precedent, Raccourcis::Geste::livrePrecedent, this);
    Raccourcis::presser(suivant, Raccourcis::Geste::livreSuivant, this);
    for (QPushButton *bouton : {precedent, suivant})
        bouton->setVisible(ordre.size() > 1);
    meubler(Pile::enRangee({}, {annulation, precedent, suivant}), page());

    connect(annulation, &BoutonsAnnulation::annuler, this,
            [this] { defaire([this] { return contexte_.historique.annuler(); }); });
    connect(annulation, &BoutonsAnnulation::retablir, this,
            [this] { defaire([this] { return contexte_.historique.retablir(); }); });
    connect(precedent, &QPushButton::clicked, this, [this] { passer(-1); });
    connect(suivant, &QPushButton::clicked, this, [this] { passer(1); });
    connect(formulaire_, &FormulaireLivre::saisi, this, [this](const Livre &livre, const QString &geste) {
        compterPourFait();
        enregistrer(livre, formulaire_->couverture(), geste);
    });
    connect(echec_, &AlerteRelecture::vaRelire, this, [this] {
        if (const Livre *avant = this->livre())
            saisie_ = {*avant, formulaire_->livre(), formulaire_->couverture()};
    });
    connect(echec_, &AlerteRelecture::relu, this, &FeuilleLivre::reprendreLaSaisie);
    connect(&contexte.catalogue, &Catalogue::change, this, &FeuilleLivre::actualiser);
    actualiser();
    formulaire_->prendreLeFocus();
}

const Livre *FeuilleLivre::livre() const
{
    const QList<Livre> &livres = contexte_.donnees().livres;
    const auto trouve = std::ranges::find(livres, id_, &Livre::id);
    return trouve == livres.end() ? nullptr : &*trouve;
}

void FeuilleLivre::actualiser()
{
    if (const Livre *montre = livre()) {
        setWindowTitle(montre->titre);
        formulaire_->montrer(*montre);
    }
}

bool FeuilleLivre::enregistrer(const Livre &livre, const std::optional<CouverturePrete> &couverture,
                               const QString &geste)
{
    const auto ecrire = [&] {
        contexte_.historique.modifier(couverture ? avecCouverture(contexte_, livre, *couverture) : livre, geste);
    };
    const bool enregistre = tenter(ecrire);
    if (enregistre)
        actualiser();
    return enregistre;
}

// Over the book as it was read again; a save that fails once more leaves all of it in the form.
void FeuilleLivre::reprendreLaSaisie()
{
    const auto saisie = std::exchange(saisie_, std::nullopt);
    if (!saisie)
        return;
    const Livre *relu = livre();
    if (!relu)
        return echec_->montrer(TextesDonnees::livreRetireAilleurs());
    const bool libre = relu->couverture == saisie->avant.couverture;
    const auto couverture = libre ? saisie->couverture : std::nullopt;
    Livre apres = *relu;
    const bool entiere = EditionLivres::reporter(saisie->avant, saisie->livre, apres);
    if ((apres != *relu || couverture) && !enregistrer(apres, couverture, TextesGestes::modification(apres)))
        return formulaire_->montrer(apres, couverture);
    if (!entiere || couverture != saisie->couverture)
        echec_->montrer(TextesDonnees::saisieNonReprise());
}

// What is still being read would have no book to go to, if this leads to another.
void FeuilleLivre::defaire(const std::function<std::optional<qint64>()> &geste)
{
    if (formulaire_->conclure())
        tenter([&] { montrer(geste()); });
}

// A book that is gone, by what was undone, gives its place to a neighbour; the last one closes the sheet.
void FeuilleLivre::montrer(std::optional<qint64> id)
{
    if (id)
        id_ = *id;
    if (!livre()) {
        QDialog::reject();
        return;
    }
    actualiser();
    emit montre(id_);
}

void FeuilleLivre::passer(qsizetype pas)
{
    if (!conclure())
        return;
    const auto parti = [&](qint64 id) {
        return std::ranges::find(contexte_.donnees().livres, id, &Livre::id) == contexte_.donnees().livres.end();
    };
    const qsizetype ici = ordre_.indexOf(id_);
    for (qsizetype n = 1; n <= ordre_.size(); ++n) {
        const qint64 autre = ordre_[(ici + n * pas + n * ordre_.size()) % ordre_.size()];
        if (!parti(autre))
            return montrer(autre);
    }
}

// What could not be saved, or was refused, is said once before it is left; then it is tried once more.
bool FeuilleLivre::conclure()
{
    if (!formulaire_->conclure() || aLire())
        return false;
    const Livre saisi = formulaire_->livre();
    if (const Livre *enregistre = livre(); enregistre && (saisi != *enregistre || formulaire_->couverture()))
        enregistrer(saisi, formulaire_->couverture(), TextesGestes::modification(saisi));
    return true;
}

void FeuilleLivre::reject()
{
    if (conclure())
        FeuilleDeLivre::reject();
}

} // namespace Quillet
