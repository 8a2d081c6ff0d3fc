#include "ui/tarifs/CarteNouveauxFrais.h"

#include "composants/Icone.h"
#include "composants/Libelle.h"
#include "composants/LibelleChiffre.h"
#include "composants/Pile.h"
#include "composants/Tableau.h"
#include "composants/Theme.h"
#include "textes/TextesTarifs.h"
#include "ui/Contexte.h"

#include <QPainter>

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
    QWidget *frais = tableau(TextesTarifs::frais(contexte.donnees().reglages.fraisPaypal),
                             TextesTarifs::frais(*contexte.verifications.nouveauxFrais()));
    QWidget *page = Pile::enColonne(
        {.marges = {marge, marge, marge, marge}, .espace = 0},
        {Libelle::titreDeSection(windowTitle()), Pile::blanc(6), origine, Pile::blanc(14), frais, Pile::reste()});
    composer(page, QStringLiteral("Enregistrer ces frais"),
             [&verifications = contexte.verifications] { verifications.accepterFrais(); });
    prendreLaTaille(taille);
}

} // namespace Quillet
