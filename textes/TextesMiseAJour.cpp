#include "textes/TextesMiseAJour.h"

#include "model/ArgumentDeCommande.h"

#include <QLocale>

#include <algorithm>

namespace Quillet {

namespace {

using Cas = MisesAJour::Etat::Cas;
using TextesMiseAJour::Page;

const QString fermer = QStringLiteral("Fermer");
const QString annuler = QStringLiteral("Annuler");

QString taille(qint64 octets)
{
    static const QLocale francais(QLocale::French, QLocale::France);
    return francais.formattedDataSize(octets, 1, QLocale::DataSizeSIFormat).replace(u' ', QChar(QChar::Nbsp));
}

Page disponible(const Appcast::Parution &parution, const QString &installee)
{
    return {
        .titre = QStringLiteral("Quillet %1 est disponible").arg(parution.nom),
        .detail =
            QStringLiteral("Vous avez la version %1. Téléchargement : %2.").arg(installee, taille(parution.longueur)),
        .notes = parution.notes,
        .action = QStringLiteral("Télécharger et installer"),
        .retrait = QStringLiteral("Plus tard")};
}

Page telechargement(const Appcast::Parution &parution, qint64 octets)
{
    return {.titre = QStringLiteral("Téléchargement de Quillet %1").arg(parution.nom),
            .detail = QStringLiteral("%1 sur %2").arg(taille(octets), taille(parution.longueur)),
            .retrait = annuler,
            .progres = static_cast<int>(std::min(octets, parution.longueur) * 1000 / parution.longueur)};
}

} // namespace

Page TextesMiseAJour::page(const MisesAJour::Etat &etat, const QString &installee)
{
    switch (etat.cas) {
    case Cas::aJour:
        return {.titre = QStringLiteral("À jour"),
                .detail = QStringLiteral("Quillet %1 est la version la plus récente.").arg(installee),
                .retrait = fermer};
    case Cas::disponible:
        return disponible(*etat.parution, installee);
    case Cas::telechargement:
        return telechargement(*etat.parution, etat.octets);
    case Cas::pret:
        return {.titre = QStringLiteral("Quillet %1 est prêt à installer").arg(etat.parution->nom),
                .detail = QStringLiteral("L’installation continue dans le programme qui vient de s’ouvrir. S’il ne "
                                         "l’installe pas :\n\nsudo apt install %1\n\nRelancez Quillet ensuite.")
                              .arg(argumentDeCommande(etat.chemin)),
                .retrait = fermer};
    case Cas::echec:
        return {.titre = QStringLiteral("Mise à jour impossible"), .alerte = etat.message, .retrait = fermer};
    case Cas::auRepos:
    case Cas::recherche:
        break;
    }
    return {.titre = QStringLiteral("Recherche des mises à jour…"), .retrait = annuler, .attente = true};
}

} // namespace Quillet
