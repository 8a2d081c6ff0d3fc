#include "ui/tarifs/CarteNouveauxFrais.h"

#include "composants/Icone.h"
#include "composants/Libelle.h"
#include "composants/LibelleChiffre.h"
#include "composants/Tableau.h"
#include "composants/Theme.h"
#include "textes/TextesTarifs.h"
#include "ui/Contexte.h"

#include <QPainter>
#include <QVBoxLayout>

namespace Quillet {

namespace {

constexpr QSize taille(520, 340);
constexpr int marge = 24;

class Fleche : public QWidget
{
protected:
    void paintEvent(QPaintEvent *) override
    {
        const int cote = Theme::aLaTaille(16);
        QPainter peintre(this);
        Icone::peindre(peintre, QStringLiteral("arrow.right"),
                       QRectF((width() - cote) / 2.0, (height() - cote) / 2.0, cote, cote),
                       Theme::secondaire(palette()));
    }
};

QWidget *tableau(const QList<TextesTarifs::Frais> &avant, const QList<TextesTarifs::Frais> &apres)
{
    auto *tableau = new Tableau({{QStringLiteral("Frais"), Qt::AlignLeft, 5},
                                 {QStringLiteral("En vigueur"), Qt::AlignRight, 2},
                                 {{}, Qt::AlignLeft, 1},
                                 {QStringLiteral("Relevés"), Qt::AlignRight, 2}});
    tableau->setRangeeVisible(0, false);
    for (qsizetype i = 0; i < avant.size(); ++i) {
        auto *releve = new LibelleChiffre(apres[i].valeur);
        if (avant[i] != apres[i])
            releve->setFont(Theme::enGras(releve->font()));
        tableau->ajouter({new Libelle(avant[i].libelle), new LibelleChiffre(avant[i].valeur), new Fleche, releve});
    }
    return tableau;
}

} // namespace

CarteNouveauxFrais::CarteNouveauxFrais(const Contexte &contexte, QWidget *parent)
    : FeuilleDeReleve(QStringLiteral("Nouveaux frais PayPal"), parent)
{
    auto *origine = new Libelle(QStringLiteral("Relevés sur paypal.com, tarifs marchands pour la France"),
                                Libelle::Rang::secondaire);
    auto *page = new QWidget;
    auto *colonne = new QVBoxLayout(page);
    colonne->setContentsMargins(marge, marge, marge, marge);
    colonne->setSpacing(0);
    colonne->addWidget(Libelle::titreDeSection(windowTitle()));
    colonne->addSpacing(6);
    colonne->addWidget(origine);
    colonne->addSpacing(14);
    colonne->addWidget(tableau(TextesTarifs::frais(contexte.donnees().reglages.fraisPaypal),
                               TextesTarifs::frais(*contexte.verifications.nouveauxFrais())));
    colonne->addStretch(1);
    composer(page, QStringLiteral("Enregistrer ces frais"),
             [&verifications = contexte.verifications] { verifications.accepterFrais(); });
    prendreLaTaille(taille);
}

} // namespace Quillet
