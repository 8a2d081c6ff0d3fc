#include "ui/tarifs/CarteNouveauxTarifs.h"

#include "composants/Alerte.h"
#include "composants/EtatVide.h"
#include "composants/Libelle.h"
#include "composants/LibelleChiffre.h"
#include "composants/PageAuClavier.h"
#include "composants/Pile.h"
#include "composants/Tableau.h"
#include "textes/TextesVerifications.h"
#include "ui/Contexte.h"

#include <QStyle>

namespace Quillet {

namespace {

constexpr QSize taille(720, 640);
constexpr QSize tailleVide(440, 300);
constexpr int marge = 24;

QWidget *texte(const QString &texte, Qt::Alignment alignement)
{
    auto *libelle = new Libelle(texte);
    libelle->setAlignment(alignement | Qt::AlignVCenter);
    libelle->setWordWrap(alignement == Qt::AlignLeft); // the name of a zone may be long
    return libelle;
}

// With its heads only. The last two columns are one, under its head.
Tableau *tableau()
{
    return new Tableau({{QStringLiteral("Zone"), Qt::AlignLeft, 5},
                        {QStringLiteral("Jusqu’à"), Qt::AlignRight, 2},
                        {QStringLiteral("Avant"), Qt::AlignRight, 2},
                        {QStringLiteral("Après"), Qt::AlignRight, 2},
                        {QStringLiteral("Écart"), Qt::AlignRight, 3},
                        {{}, Qt::AlignRight, 2, 0, QStringLiteral("Variation")}});
}

QWidget *changements(const QList<TextesVerifications::Ecart> &ecarts)
{
    Tableau *rangees = tableau();
    rangees->setRangeeVisible(0, false); // the heads stay above the page that scrolls
    for (const TextesVerifications::Ecart &ecart : ecarts)
        rangees->ajouter({texte(ecart.zone, Qt::AlignLeft), texte(ecart.jusqua, Qt::AlignRight),
                          new LibelleChiffre(ecart.avant), new LibelleChiffre(ecart.apres),
                          new LibelleChiffre(ecart.ecart), new LibelleChiffre(ecart.variation)});
    const int ascenseur = rangees->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    return Pile::enColonne({.marges = {marge, 0, marge - ascenseur, marge}}, {rangees, Pile::reste()});
}

} // namespace

CarteNouveauxTarifs::CarteNouveauxTarifs(const Contexte &contexte, QWidget *parent)
    : FeuilleDeReleve(QStringLiteral("Nouveaux tarifs Colissimo"), parent)
{
    const ReleveColissimo &releve = *contexte.verifications.nouveauxTarifs();
    const auto ecarts = EcartTarif::duReleve(contexte.donnees(), releve.tarifs);
    if (ecarts.isEmpty()) {
        composerVide(new EtatVide(QStringLiteral("checkmark.seal"), QStringLiteral("Pas de changement"),
                                  QStringLiteral("Les tarifs de laposte.fr sont ceux de l’app.")));
        prendreLaTaille(tailleVide);
        return;
    }

    auto *dates = new Libelle(TextesVerifications::dates(releve.tarifs), Libelle::Rang::secondaire);
    dates->setWordWrap(true);
    QBoxLayout *tete = Pile::colonne({.marges = {marge, marge, marge, 0}, .espace = 6},
                                     {Libelle::titreDeSection(windowTitle()), dates});
    if (!releve.dateTrouvee)
        tete->addWidget(
            new Alerte(QStringLiteral("calendar.badge.exclamationmark"),
                       QStringLiteral("Date d’effet introuvable sur la page : c’est le jour du relevé qui est retenu."),
                       Alerte::Ton::avertissement));
    tete->addSpacing(8);
    tete->addWidget(tableau());
    auto *defilement = new PageAuClavier;
    defilement->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // the heads above leave room for it
    defilement->setWidget(changements(TextesVerifications::ecarts(ecarts)));
    defilement->widget()->setAutoFillBackground(false); // the focus ring is painted behind it
    defilement->setAccessibleName(QStringLiteral("Paliers qui changent"));
    auto *compte = new Libelle(TextesVerifications::compte(ecarts, releve.tarifs));
    compte->setContentsMargins(marge, 10, marge, 0);

    QWidget *page =
        Pile::enColonne({.marges = {0, 0, 0, 12}, .espace = 0}, {tete, {defilement, 1}, filet(Qt::Horizontal), compte});
    composer(page, QStringLiteral("Enregistrer ces tarifs"),
             [&verifications = contexte.verifications] { verifications.accepterTarifs(); });
    prendreLaTaille(taille);
}

} // namespace Quillet
