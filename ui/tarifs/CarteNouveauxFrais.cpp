#include "ui/tarifs/CarteNouveauxFrais.h"

#include "composants/Alerte.h"
#include "composants/Icone.h"
#include "composants/Libelle.h"
#include "composants/LibelleChiffre.h"
#include "composants/Pile.h"
#include "composants/Tableau.h"
#include "composants/Theme.h"
#include "textes/TextesReleves.h"
#include "ui/Contexte.h"
#include "ui/tarifs/ChiffreAVerifier.h"

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

QWidget *releve(const TextesReleves::Frais &frais)
{
    if (frais.aVerifier)
        return new ChiffreAVerifier(frais.lu);
    auto *lu = new LibelleChiffre(frais.lu);
    if (frais.change)
        lu->setFont(Theme::enGras(lu->font()));
    return lu;
}

QWidget *tableau(const QList<TextesReleves::Frais> &frais)
{
    auto *tableau = new Tableau({{QStringLiteral("Frais"), Qt::AlignLeft, 5},
                                 {QStringLiteral("En vigueur"), Qt::AlignRight, 2},
                                 {{}, Qt::AlignLeft, 1},
                                 {QStringLiteral("Relevés"), Qt::AlignRight, 2}});
    tableau->setRangeeVisible(0, false);
    for (const TextesReleves::Frais &ligne : frais)
        tableau->ajouter({new Libelle(ligne.libelle), new LibelleChiffre(ligne.enVigueur), new Fleche, releve(ligne)});
    return tableau;
}

} // namespace

CarteNouveauxFrais::CarteNouveauxFrais(const Contexte &contexte, QWidget *parent)
    : FeuilleDeReleve(QStringLiteral("Nouveaux frais PayPal"), parent)
{
    const FraisPaypal lus = *contexte.verifications.nouveauxFrais();
    auto *origine = new Libelle(QStringLiteral("Relevés sur paypal.com, tarifs marchands pour la France"),
                                Libelle::Rang::secondaire);
    const FraisPaypal &enVigueur = contexte.donnees().reglages.fraisPaypal;
    const auto frais = TextesReleves::frais(enVigueur, lus);
    const QStringList aVerifier = TextesReleves::fraisAVerifier(frais);
    QWidget *page = Pile::enColonne({.marges = {marge, marge, marge, marge}, .espace = 0},
                                    {Libelle::titreDeSection(windowTitle()), Pile::blanc(6), origine, Pile::blanc(14),
                                     tableau(frais), Pile::blanc(10),
                                     new Alerte(TextesReleves::fraisMarques(aVerifier)), Pile::reste()});
    Verifications &verifications = contexte.verifications;
    composer(page, {.bouton = QStringLiteral("Enregistrer ces frais"),
                    .question = QStringLiteral("Enregistrer ces frais quand même ?"),
                    .reserves = aVerifier,
                    .tientEncore = [&verifications, lus] { return verifications.nouveauxFrais() == lus; },
                    .accepter = [&verifications] { verifications.accepterFrais(); }});
    prendreLaTaille(taille);
}

} // namespace Quillet
