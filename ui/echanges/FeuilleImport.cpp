#include "ui/echanges/FeuilleImport.h"

#include "composants/Alerte.h"
#include "composants/Attente.h"
#include "composants/Boutons.h"
#include "composants/Defilement.h"
#include "composants/Formulaire.h"
#include "composants/Interrupteur.h"
#include "composants/Libelle.h"
#include "composants/Pile.h"
#include "documents/NumerotationFactures.h"
#include "echanges/Reprise.h"
#include "textes/TextesReprise.h"
#include "ui/Contexte.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

namespace Quillet {

namespace {

constexpr QSize taille(560, 620);
constexpr int marge = 24;

SeriesFactures seriesIci(const Preferences &preferences)
{
    const NumerotationFactures numerotation{preferences};
    SeriesFactures series;
    for (const Vendeur vendeur : tous<Vendeur>)
        try {
            series.insert(vendeur, numerotation.dernier(vendeur));
        } catch (const ErreurStockage &) {
            series.insert(vendeur, {}); // lost: the archive's can only help
        }
    return series;
}

QWidget *section(const TextesReprise::Section &section)
{
    auto *groupe = new Formulaire::Section(section.titre);
    for (const TextesReprise::Ligne &ligne : section.lignes) {
        auto *rangee = new Formulaire::Rangee(ligne.libelle, new Libelle(ligne.nombre));
        rangee->setDetail(ligne.detail);
        groupe->groupe()->ajouter(rangee);
    }
    return groupe;
}

Alerte *note(const QString &texte)
{
    auto *note = new Alerte(QStringLiteral("info.circle"), texte, Alerte::Ton::note);
    note->montrer(texte);
    return note;
}

} // namespace

FeuilleImport::FeuilleImport(const Contexte &contexte, std::unique_ptr<Reprise> reprise, const QString &geste,
                             QWidget *parent)
    : Feuille(geste, parent), contexte_(contexte), reprise_(std::move(reprise)), erreur_(new Alerte)
{
    QPushButton *annuler = Boutons::deFeuille(QStringLiteral("Annuler"));
    auto *prendre = new QPushButton(geste);
    connect(annuler, &QPushButton::clicked, this, &QDialog::reject);
    connect(prendre, &QPushButton::clicked, this, &FeuilleImport::prendre);
    prendre->setDefault(true);
    auto *defilement = new Defilement;
    defilement->setWidget(page());
    QBoxLayout *boutons = Pile::rangee({}, {Pile::reste(), annuler, prendre});
    QBoxLayout *pied = Pile::colonne({.marges = {marge, 14, marge, 16}, .espace = 10}, {erreur_, boutons});
    Pile::colonne(this, {.espace = 0}, {{defilement, 1}, filet(Qt::Horizontal), pied});
    prendreLaTaille(taille);
}

FeuilleImport::~FeuilleImport() = default;

QWidget *FeuilleImport::page()
{
    auto *origine =
        new Libelle(TextesReprise::origine(reprise_->manifeste(), reprise_->donnees(), reprise_->aDesDonneesPropres()),
                    Libelle::Rang::secondaire);
    origine->setWordWrap(true);
    Comparaison comparaison = Comparaison::de(contexte_.donnees(), reprise_->donnees());
    comparaison.series = Comparaison::desSeries(seriesIci(contexte_.preferences), reprise_->series());
    QWidget *page =
        Pile::enColonne({.marges = {marge, marge, marge, marge}, .espace = 16},
                        {Libelle::titreDeSection(windowTitle()), origine, note(suites(!comparaison.estVide())),
                         new Alerte(TextesReprise::laisses(reprise_->inconnus())),
                         new Alerte(TextesReprise::aCorriger(reprise_->remarques()))});
    for (const TextesReprise::Section &partie : TextesReprise::sections(comparaison))
        page->layout()->addWidget(section(partie));
    if (!comparaison.series.isEmpty())
        page->layout()->addWidget(series(comparaison.series));
    static_cast<QBoxLayout *>(page->layout())->addStretch();
    return page;
}

// What becomes of what stands here.
QString FeuilleImport::suites(bool change) const
{
    return TextesReprise::suites(change, reprise_->aDesDonneesPropres() && !contexte_.bon().estVide());
}

QWidget *FeuilleImport::series(const QList<Comparaison::Serie> &series)
{
    auto *groupe = new Formulaire::Section(QStringLiteral("Numéros de factures"));
    for (const Comparaison::Serie &serie : series) {
        auto *prise = new Interrupteur;
        prise->setChecked(!serie.recule);
        const QString nom = TextesReprise::serie(serie, reprise_->donnees());
        auto *rangee = new Formulaire::Rangee({}, prise);
        rangee->setTexte(nom);
        rangee->setDetail(TextesReprise::passage(serie));
        prise->setAccessibleName(QStringLiteral("Reprendre les numéros de %1").arg(nom));
        groupe->groupe()->ajouter(rangee);
        series_.append({serie, prise});
    }
    return groupe;
}

void FeuilleImport::prendre()
{
    SeriesFactures series;
    for (const auto &[serie, prise] : series_)
        if (prise->isChecked())
            series.insert(serie.vendeur, serie.la);
    const QDateTime maintenant(contexte_.jour.aujourdhui(), QTime::currentTime());
    try {
        reprise_->prendre(series, maintenant, [this](const std::function<void()> &travail) {
            Attente::jusquAuBout(this, QStringLiteral("Import…"), travail);
        });
        recharger();
        accept();
    } catch (const RepriseInachevee &erreur) { // what is in memory is not what the disk has: nothing may be saved
        QMessageBox::critical(this, windowTitle(), erreur.texte());
        QApplication::exit(1);
    } catch (const RessourceIllisible &erreur) {
        QMessageBox::critical(this, windowTitle(), erreur.texte());
        QApplication::exit(1);
    } catch (const Echec &erreur) {
        erreur_->montrer(erreur.texte());
    }
}

// An order names books by their numbers, which may be others' now. The example's seller and packaging are nobody's; the
// sellers' own stay, if they still are there.
void FeuilleImport::recharger()
{
    const bool deLExemple = !contexte_.donnees().personnelles;
    contexte_.catalogue.recharger();
    if (!reprise_->aDesDonneesPropres())
        return;
    if (deLExemple) {
        contexte_.commande.commencer(contexte_.donnees());
        return;
    }
    BonDeCommande bon = contexte_.commande.bon();
    bon.vider();
    bon.suivre(contexte_.donnees());
    contexte_.commande.adopter(bon); // not to be given back
}

} // namespace Quillet
