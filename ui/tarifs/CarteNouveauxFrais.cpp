#include "ui/tarifs/CarteNouveauxFrais.h"

#include "composants/Icone.h"
#include "composants/Libelle.h"
#include "composants/LibelleChiffre.h"
#include "composants/RangeeDeTableau.h"
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

QWidget *ligne(const TextesTarifs::Frais &avant, const TextesTarifs::Frais &apres)
{
    const auto valeur = [](const QString &texte, bool change) {
        auto *nombre = new LibelleChiffre(texte);
        if (change)
            nombre->setFont(Theme::enGras(nombre->font()));
        return nombre;
    };
    return new RangeeDeTableau({{new Libelle(avant.libelle), 5},
                                {valeur(avant.valeur, false), 2},
                                {new Fleche, 1},
                                {valeur(apres.valeur, avant != apres), 2}});
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
    const auto avant = TextesTarifs::frais(contexte.donnees().reglages.fraisPaypal);
    const auto apres = TextesTarifs::frais(*contexte.verifications.nouveauxFrais());
    for (qsizetype i = 0; i < avant.size(); ++i)
        colonne->addWidget(ligne(avant[i], apres[i]));
    colonne->addStretch(1);
    composer(page, QStringLiteral("Enregistrer ces frais"),
             [&verifications = contexte.verifications] { verifications.accepterFrais(); });
    prendreLaTaille(taille);
}

} // namespace Quillet
