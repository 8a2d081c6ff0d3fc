#include "model/controle/ControleDonnees.h"

#include "model/Couvertures.h"
#include "model/controle/FichierControle.h"
#include "model/controle/Regles.h"

#include <QFileInfo>

#include <algorithm>
#include <optional>
#include <vector>

namespace Quillet {

namespace {

// None: it can be entered.
std::optional<QString> obstacle(const QDir &dossier)
{
    const QFileInfo info(dossier.path());
    if (!info.exists())
        return QStringLiteral("dossier introuvable");
    if (!info.isDir())
        return QStringLiteral("ce n’est pas un dossier");
    if (!info.isReadable() || !info.isExecutable())
        return QStringLiteral("l’accès n’est pas permis");
    return std::nullopt;
}

// Before the first one, the earliest counts.
bool aucunEnVigueur(const Regles::TarifsParFichier &fichiers, QDate aujourdhui)
{
    QList<Jour> jours;
    for (const auto &[nom, tarifs] : fichiers)
        if (tarifs.validite.date().isValid())
            jours.append(tarifs.validite);
    return !jours.isEmpty() && std::ranges::min(jours) > Jour(aujourdhui);
}

QString compte(qsizetype nombre, const QString &un, const QString &plusieurs)
{
    return QStringLiteral("%1 %2").arg(QString::number(nombre), nombre > 1 ? plusieurs : un);
}

} // namespace

ControleDonnees ControleDonnees::de(const QDir &dossier, QDate aujourdhui)
{
    if (const auto raison = obstacle(dossier))
        return {.erreurs = {QStringLiteral("%1 : %2").arg(QDir::toNativeSeparators(dossier.path()), *raison)}};

    const Ressources ressources(dossier);
    FichierControle<QList<Livre>> livres(ressources, QStringLiteral("livres"));
    FichierControle<QList<Destination>> destinations(ressources, QStringLiteral("destinations"));
    FichierControle<Reglages> reglages(ressources, QStringLiteral("reglages"));
    const QStringList noms = ressources.nomsDesTarifs();
    std::vector<FichierControle<TarifsColissimo>> tarifs;
    for (const QString &nom : noms)
        tarifs.emplace_back(ressources, nom);

    Regles::TarifsParFichier tarifsLus;
    for (FichierControle<TarifsColissimo> &fichier : tarifs) {
        fichier.controler(Regles::tarifs, tarifsLus);
        tarifsLus.append({fichier.nom(), fichier.valeur()});
    }
    reglages.controler(Regles::reglages, ReglesCommunes::codes(destinations.valeur()));
    destinations.controler(Regles::destinations, tarifsLus);
    const QDir couvertures(ressources.chemin(QStringLiteral("couvertures")));
    livres.controler(Regles::livres,
                     Regles::Reperes{ReglesCommunes::codes(destinations.valeur()), reglages.valeur().vendeurs,
                                     couvertures, Couvertures::fichiers(couvertures)});

    std::optional<FichierControle<QList<Pays>>> pays;
    if (ressources.existe(QStringLiteral("pays"))) {
        // One destination to be mended would be told of each of its countries.
        const bool comparables = destinations.erreurs().isEmpty();
        pays.emplace(ressources, QStringLiteral("pays"))
            .controler(Regles::pays,
                       comparables ? ReglesCommunes::codes(destinations.valeur()) : QList<CodeDestination>());
    }

    ControleDonnees controle{
        .livres = livres.valeur().size(), .tarifs = noms.size(), .destinations = destinations.valeur().size()};
    controle.erreurs = livres.erreurs() + destinations.erreurs() + reglages.erreurs();
    if (pays)
        controle.erreurs += pays->erreurs();
    for (const FichierControle<TarifsColissimo> &fichier : tarifs)
        controle.erreurs += fichier.erreurs();
    if (noms.isEmpty())
        controle.erreurs.append(Ressources::tarifsIntrouvables());
    if (aucunEnVigueur(tarifsLus, aujourdhui))
        controle.erreurs.append(
            QStringLiteral("tarifs-colissimo-….json : aucun n’est en vigueur, le premier compterait avant son jour"));
    return controle;
}

QString ControleDonnees::bilan() const
{
    if (erreurs.isEmpty())
        return QStringLiteral("%1, %2, %3 : rien à corriger.")
            .arg(compte(livres, QStringLiteral("livre"), QStringLiteral("livres")),
                 compte(tarifs, QStringLiteral("fichier de tarifs"), QStringLiteral("fichiers de tarifs")),
                 compte(destinations, QStringLiteral("destination"), QStringLiteral("destinations")));
    const QString bilan =
        compte(erreurs.size(), QStringLiteral("erreur"), QStringLiteral("erreurs")) + QStringLiteral(" à corriger.");
    const bool deListe = erreurs.join(QString()).contains(u'[');
    return deListe ? bilan + QStringLiteral(" Les listes se comptent à partir de 0 : livres[0] est le premier livre.")
                   : bilan;
}

} // namespace Quillet
