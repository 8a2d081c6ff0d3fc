#include "ui/tarifs/CarteNouveauxTarifs.h"

#include "composants/Alerte.h"
#include "composants/Dessin.h"
#include "composants/EtatVide.h"
#include "composants/Libelle.h"
#include "composants/LibelleChiffre.h"
#include "composants/PageAuClavier.h"
#include "composants/Pile.h"
#include "composants/Tableau.h"
#include "composants/Theme.h"
#include "textes/TextesReleves.h"
#include "textes/TextesVerifications.h"
#include "ui/Contexte.h"
#include "ui/tarifs/ChiffreAVerifier.h"
#include "watch/PorteeTarifs.h"

#include <QPainter>
#include <QSet>
#include <QStyle>

namespace Quillet {

namespace {

constexpr QSize taille(720, 640);
constexpr QSize tailleVide(440, 300);
constexpr int marge = 24;
constexpr int retrait = 10; // of rows, for the tint behind some of them

QWidget *texte(const QString &texte, Qt::Alignment alignement)
{
    auto *libelle = new Libelle(texte);
    libelle->setAlignment(alignement | Qt::AlignVCenter);
    libelle->setWordWrap(alignement == Qt::AlignLeft); // the name of a zone may be long
    return libelle;
}

// With its heads only. The last two columns are one, under its head; who hears it is told which is which.
Tableau *tableau()
{
    return new Tableau({{QStringLiteral("Zone"), Qt::AlignLeft, 5},
                        {QStringLiteral("Jusqu’à"), Qt::AlignRight, 2},
                        {QStringLiteral("Avant"), Qt::AlignRight, 2},
                        {QStringLiteral("Après"), Qt::AlignRight, 2},
                        {{}, Qt::AlignRight, 2, 0, QStringLiteral("Écart")},
                        {QStringLiteral("Écart"), Qt::AlignRight, 2, 0, QStringLiteral("Variation")}});
}

Tableau *changements(const QList<EcartTarif> &ecarts, const QSet<QString> &aVerifier)
{
    Tableau *rangees = tableau();
    rangees->setRangeeVisible(0, false); // the heads stay above the page that scrolls
    const auto textes = TextesVerifications::ecarts(ecarts);
    for (qsizetype i = 0; i < textes.size(); ++i) {
        const auto &[zone, jusqua, avant, apres, ecart, variation] = textes[i];
        LibelleChiffre *lu =
            aVerifier.contains(ecarts[i].id()) ? new ChiffreAVerifier(apres) : new LibelleChiffre(apres);
        rangees->ajouter({texte(zone, Qt::AlignLeft), texte(jusqua, Qt::AlignRight), new LibelleChiffre(avant), lu,
                          new LibelleChiffre(ecart), new LibelleChiffre(variation, Libelle::Rang::secondaire)});
    }
    return rangees;
}

EtatVide *pasDeChangement()
{
    return new EtatVide(QStringLiteral("checkmark.seal"), QStringLiteral("Pas de changement"),
                        QStringLiteral("Les tarifs de laposte.fr sont ceux de l’app."));
}

// Rows set off from the list under them.
class Encadre : public QWidget
{
public:
    Encadre(const QString &titre, Tableau *rangees)
    {
        auto *libelle = new Libelle(titre);
        libelle->setFont(Theme::enGras(libelle->font()));
        libelle->setWordWrap(true);
        Pile::colonne(this, {.marges = {retrait, 10, retrait, 4}, .espace = 8}, {libelle, rangees});
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter peintre(this);
        peintre.setRenderHint(QPainter::Antialiasing);
        Dessin::aplat(peintre, rect(), Theme::rayonGroupe, Dessin::transparente(Theme::accentTexte(palette()), 0.10));
    }
};

// The list of differences; above it, where known schedules are corrected, what that changes of them.
QWidget *listes(const QList<EcartTarif> &ecarts, const PorteeTarifs &portee)
{
    QSet<QString> aVerifier;
    for (const EcartTarif &ecart : portee.ecarts)
        if (ecart.aVerifier())
            aVerifier.insert(ecart.id());
    QWidget *page = new QWidget;
    const int ascenseur = page->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    QBoxLayout *colonne =
        Pile::colonne(page, {.marges = {marge - retrait, 0, marge - ascenseur - retrait, marge}, .espace = 0});
    if (ecarts.isEmpty())
        colonne->addWidget(pasDeChangement());
    if (portee.corrige()) {
        auto *veille = new Libelle(TextesReleves::depuisLaVeille(ecarts), Libelle::Rang::secondaire);
        veille->setContentsMargins(retrait, 18, retrait, 8);
        colonne->addWidget(new Encadre(TextesReleves::effet(portee), changements(portee.ecarts, aVerifier)));
        colonne->insertWidget(ecarts.isEmpty() ? 1 : -1, veille); // beside the list that it speaks of
    }
    if (!ecarts.isEmpty()) {
        Tableau *liste = changements(ecarts, aVerifier);
        liste->setContentsMargins(retrait, 0, retrait, 0);
        colonne->addWidget(liste);
    }
    colonne->addStretch();
    return page;
}

} // namespace

CarteNouveauxTarifs::CarteNouveauxTarifs(const Contexte &contexte, QWidget *parent)
    : FeuilleDeReleve(QStringLiteral("Nouveaux tarifs Colissimo"), parent)
{
    const ReleveColissimo releve = *contexte.verifications.nouveauxTarifs();
    const auto ecarts = EcartTarif::duReleve(contexte.donnees(), releve.tarifs);
    const Jour aujourdhui = contexte.jour.aujourdhui();
    const auto portee = PorteeTarifs::de(contexte.donnees(), releve.tarifs, aujourdhui);
    if (ecarts.isEmpty() && !portee.corrige()) {
        composerVide(pasDeChangement());
        prendreLaTaille(tailleVide);
        return;
    }

    const QStringList aVerifier = TextesReleves::prixAVerifier(portee);
    QStringList reserves = TextesReleves::reserves(portee, releve.tarifs, contexte.donnees(), aujourdhui);

    auto *dates = new Libelle(TextesVerifications::dates(releve.tarifs), Libelle::Rang::secondaire);
    dates->setWordWrap(true);
    QBoxLayout *tete = Pile::colonne({.marges = {marge, marge, marge, 0}, .espace = 6},
                                     {Libelle::titreDeSection(windowTitle()), dates, Pile::blanc(2)});
    if (!releve.dateTrouvee)
        tete->addWidget(
            new Alerte(QStringLiteral("calendar.badge.exclamationmark"),
                       QStringLiteral("Date d’effet introuvable sur la page : c’est le jour du relevé qui est retenu."),
                       Alerte::Ton::avertissement));
    for (const QString &phrase : reserves + TextesReleves::resume(aVerifier))
        tete->addWidget(new Alerte(phrase));
    if (const QString effet = TextesReleves::effet(portee); !effet.isEmpty() && !portee.corrige())
        tete->addWidget(new Alerte(QStringLiteral("info.circle"), effet, Alerte::Ton::note));
    tete->addSpacing(8);
    tete->addWidget(tableau());
    auto *defilement = new PageAuClavier;
    defilement->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // the heads above leave room for it
    defilement->setWidget(listes(ecarts, portee));
    defilement->widget()->setAutoFillBackground(false); // the focus ring is painted behind it
    defilement->setAccessibleName(QStringLiteral("Paliers qui changent"));
    auto *compte = new Libelle(TextesVerifications::compte(ecarts, releve.tarifs));
    compte->setContentsMargins(marge, 10, marge, 0);
    QWidget *total = Pile::enColonne({.marges = {0, 0, 0, 12}, .espace = 0}, {filet(Qt::Horizontal), compte});
    if (ecarts.isEmpty())
        total->hide();

    QWidget *page = Pile::enColonne({.espace = 0}, {tete, {defilement, 1}, total});
    Verifications &verifications = contexte.verifications;
    composer(page, {.bouton = QStringLiteral("Enregistrer ces tarifs"),
                    .question = QStringLiteral("Enregistrer ces tarifs quand même ?"),
                    .reserves = reserves + aVerifier,
                    .tientEncore = [&verifications, releve] { return verifications.nouveauxTarifs() == releve; },
                    .accepter = [&verifications] { verifications.accepterTarifs(); },
                    .sansEcart = ecarts.isEmpty()});
    prendreLaTaille(taille);
}

} // namespace Quillet
