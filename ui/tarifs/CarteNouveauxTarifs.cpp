#include "ui/tarifs/CarteNouveauxTarifs.h"

#include "composants/Alerte.h"
#include "composants/EtatVide.h"
#include "composants/Libelle.h"
#include "composants/LibelleChiffre.h"
#include "composants/PageAuClavier.h"
#include "composants/RangeeDeTableau.h"
#include "textes/TextesVerifications.h"
#include "ui/Contexte.h"

#include <QStyle>
#include <QVBoxLayout>

#include <array>

namespace Quillet {

namespace {

constexpr QSize taille(720, 640);
constexpr QSize tailleVide(440, 300);
constexpr int marge = 24;
constexpr std::array parts{5, 2, 2, 2, 3, 2}; // of the columns; the last two are one, under its head

QWidget *texte(const QString &texte, Qt::Alignment alignement)
{
    auto *libelle = new Libelle(texte);
    libelle->setAlignment(alignement | Qt::AlignVCenter);
    libelle->setWordWrap(alignement == Qt::AlignLeft); // the name of a zone may be long
    return libelle;
}

QWidget *tetes()
{
    return new RangeeDeTableau({{RangeeDeTableau::tete(QStringLiteral("Zone"), Qt::AlignLeft), parts[0]},
                                {RangeeDeTableau::tete(QStringLiteral("Jusqu’à"), Qt::AlignRight), parts[1]},
                                {RangeeDeTableau::tete(QStringLiteral("Avant"), Qt::AlignRight), parts[2]},
                                {RangeeDeTableau::tete(QStringLiteral("Après"), Qt::AlignRight), parts[3]},
                                {RangeeDeTableau::tete(QStringLiteral("Écart"), Qt::AlignRight), parts[4]},
                                {RangeeDeTableau::tete({}, Qt::AlignRight), parts[5]}},
                               RangeeDeTableau::Filet::aucun);
}

QWidget *tableau(const QList<TextesVerifications::Ecart> &ecarts)
{
    auto *tableau = new QWidget;
    auto *colonne = new QVBoxLayout(tableau);
    const int ascenseur = tableau->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    colonne->setContentsMargins(marge, 0, marge - ascenseur, marge);
    colonne->setSpacing(0);
    for (const TextesVerifications::Ecart &ecart : ecarts)
        colonne->addWidget(new RangeeDeTableau({{texte(ecart.zone, Qt::AlignLeft), parts[0]},
                                                {texte(ecart.jusqua, Qt::AlignRight), parts[1]},
                                                {new LibelleChiffre(ecart.avant), parts[2]},
                                                {new LibelleChiffre(ecart.apres), parts[3]},
                                                {new LibelleChiffre(ecart.ecart), parts[4]},
                                                {new LibelleChiffre(ecart.variation), parts[5]}}));
    colonne->addStretch(1);
    return tableau;
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
    auto *tete = new QVBoxLayout;
    tete->setContentsMargins(marge, marge, marge, 0);
    tete->setSpacing(6);
    tete->addWidget(Libelle::titreDeSection(windowTitle()));
    tete->addWidget(dates);
    if (!releve.dateTrouvee)
        tete->addWidget(
            new Alerte(QStringLiteral("calendar.badge.exclamationmark"),
                       QStringLiteral("Date d’effet introuvable sur la page : c’est le jour du relevé qui est retenu."),
                       Alerte::Ton::avertissement));
    tete->addSpacing(8);
    tete->addWidget(tetes());
    auto *defilement = new PageAuClavier;
    defilement->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // the heads above leave room for it
    defilement->setWidget(tableau(TextesVerifications::ecarts(ecarts)));
    defilement->widget()->setAutoFillBackground(false); // the focus ring is painted behind it
    defilement->setAccessibleName(QStringLiteral("Paliers qui changent"));
    auto *compte = new Libelle(TextesVerifications::compte(ecarts, releve.tarifs));
    compte->setContentsMargins(marge, 10, marge, 0);

    auto *page = new QWidget;
    auto *colonne = new QVBoxLayout(page);
    colonne->setContentsMargins(0, 0, 0, 12);
    colonne->setSpacing(0);
    colonne->addLayout(tete);
    colonne->addWidget(defilement, 1);
    colonne->addWidget(filet(Qt::Horizontal));
    colonne->addWidget(compte);
    composer(page, QStringLiteral("Enregistrer ces tarifs"),
             [&verifications = contexte.verifications] { verifications.accepterTarifs(); });
    prendreLaTaille(taille);
}

} // namespace Quillet
