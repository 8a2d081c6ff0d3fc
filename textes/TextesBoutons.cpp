#include "textes/TextesBoutons.h"

#include "model/Format.h"
#include "textes/TextesLivres.h"

namespace Quillet {

namespace {

QString ecart(const PrixBouton &bouton)
{
    if (!bouton.calcule || !bouton.actuel || bouton.calcule == bouton.actuel)
        return {};
    return Format::ecart(*bouton.calcule - *bouton.actuel);
}

QString pourquoiSansPrix(const PrixBouton &bouton, const Livre &livre, const TarifsColissimo &tarifs)
{
    if (!livre.poids)
        return QStringLiteral("Livre à peser");
    const GrilleColissimo *grille = tarifs.grille(bouton.destination.grille);
    return grille ? QStringLiteral("Trop lourd pour Colissimo") : QStringLiteral("Pas de grille Colissimo");
}

QString etatEnMots(const PrixBouton &bouton, const Livre &livre, const TarifsColissimo &tarifs)
{
    switch (bouton.etat()) {
    case PrixBouton::Etat::sansPrix:
        return pourquoiSansPrix(bouton, livre, tarifs);
    case PrixBouton::Etat::aJour:
        return QStringLiteral("À jour");
    case PrixBouton::Etat::garde:
        return QStringLiteral("Prix gardé");
    case PrixBouton::Etat::aReporter:
        return QStringLiteral("À reporter");
    }
    Q_UNREACHABLE();
}

} // namespace

QList<TextesBoutons::Ligne> TextesBoutons::lignes(const QList<PrixBouton> &boutons, const Livre &livre,
                                                  const TarifsColissimo &tarifs)
{
    QList<Ligne> lignes;
    for (const PrixBouton &bouton : boutons) {
        Ligne ligne{.destination = bouton.destination.valeurPaypal,
                    .palier = {},
                    .actuel = Format::euros(bouton.actuel),
                    .calcule = Format::euros(bouton.calcule),
                    .ecart = ecart(bouton),
                    .etat = bouton.etat(),
                    .etatEnMots = etatEnMots(bouton, livre, tarifs),
                    .aCopier = {},
                    .peutReporter = bouton.calcule && bouton.calcule != bouton.actuel,
                    .peutGarder = bouton.etat() == PrixBouton::Etat::aReporter};
        if (bouton.calcule) {
            ligne.palier =
                QStringLiteral("%1 · envoi %2").arg(Format::jusqua(*bouton.palier), Format::euros(*bouton.envoi));
            ligne.aCopier = Format::montant(*bouton.calcule);
        }
        lignes.append(ligne);
    }
    return lignes;
}

QString TextesBoutons::aReporter(qsizetype boutons)
{
    return QStringLiteral("%1 à reporter").arg(boutons);
}

QString TextesBoutons::nombreAReporter(qsizetype boutons)
{
    return QStringLiteral("%1 prix à reporter").arg(boutons);
}

QString TextesBoutons::situation(const Livre &livre, qsizetype aReporter)
{
    if (aReporter > 0)
        return nombreAReporter(aReporter);
    return livre.poids ? QStringLiteral("Rien à reporter") : QStringLiteral("Pesez le livre pour calculer ses prix.");
}

QString TextesBoutons::bilan(qsizetype livres, qsizetype aReporter)
{
    const QString nombre = TextesLivres::nombre(livres);
    return aReporter == 0 ? nombre : nombre + QStringLiteral(" · ") + nombreAReporter(aReporter);
}

} // namespace Quillet
