#include "bench/fautes/Maison.h"

#include "documents/NumerotationFactures.h"
#include "echanges/Copies.h"
#include "echanges/DepotCouvertures.h"
#include "model/Couvertures.h"
#include "tests/Banc.h"

#include <QDirIterator>

namespace Quillet {

namespace {

const QDateTime maintenant(QDate(2026, 3, 2), QTime(9, 0));

QByteArray image(int rang, int livre)
{
    return QByteArray::number(rang * 100 + livre).repeated(700);
}

void importer(const Maison &maison, const QString &archive)
{
    const auto reprise = maison.preparer(archive);
    reprise->prendre(reprise->series(), maintenant);
}

void copier(const Maison &maison, const QString &)
{
    Copies(maison.demeure()).duJour(maintenant.date());
}

void changerDeCouverture(const Maison &maison, const QString &)
{
    const auto catalogue = maison.catalogue();
    Livre livre = catalogue->donnees().livres.first();
    const QDir couvertures(maison.dossier().filePath(QStringLiteral("donnees/couvertures")));
    livre.couverture = Couvertures::nom(
        Couvertures::deposer(couvertures, livre.titre, {image(9, 9), QStringLiteral("png"), livre.teinte}));
    catalogue->modifier({livre});
}

} // namespace

Maison::Maison(Ressources ressources, const QString &dossier)
    : ressources_(std::move(ressources)),
      dossier_(dossier),
      preferences_(dossier_.filePath(QStringLiteral("Quillet.ini")))
{
}

void Maison::installer(int rang) const
{
    QList<Livre> livres = ressources_.lire<QList<Livre>>(QStringLiteral("livres")).first(2 + rang);
    QHash<QString, QByteArray> couvertures;
    for (Livre &livre : livres) {
        livre.prix = Centimes{1000 + rang};
        livre.couverture = QStringLiteral("livre-%1").arg(livre.id); // the same name, of other bytes
        couvertures.insert(livre.couverture + QStringLiteral(".png"), image(rang, int(livre.id)));
    }
    const auto reglages = ressources_.lire<Reglages>(QStringLiteral("reglages"));
    DossierPersonnel::creer(Stockage(dossier_).donneesPersonnelles(), ressources_, reglages, livres, couvertures);
    FraisPaypal frais = reglages.fraisPaypal;
    frais.fixe = Centimes{10 + rang};
    Stockage(dossier_).ecrire(frais, Stockage::fichierDesFrais());
    if (rang > 1)
        Stockage(dossier_).ecrire(desTarifs("2099-01-01", Centimes{1}),
                                  QStringLiteral("tarifs-colissimo-2099-01-01.json"));
    NumerotationFactures{preferences_}.retenir(QStringLiteral("2026-00%1").arg(rang), Vendeur::davrel);
}

std::unique_ptr<Catalogue> Maison::catalogue() const
{
    const Stockage stockage(dossier_);
    return Catalogue::charge(Ressources::personnelles(stockage.donneesPersonnelles()).value_or(ressources_), stockage);
}

Demeure Maison::demeure() const
{
    return Demeure::de(*catalogue(), preferences_);
}

std::unique_ptr<Reprise> Maison::preparer(const QString &archive) const
{
    return Reprise::preparer(archive, demeure(), maintenant.date(), [](const QStringList &) { return QStringList(); });
}

void Maison::demarrer() const
{
    Reprise::achever(dossier_, preferences_);
    static_cast<void>(catalogue());
}

QMap<QString, QByteArray> Maison::etat() const
{
    QStringList nommees;
    const QList<Livre> livres = catalogue()->donnees().livres;
    for (const Livre &livre : livres)
        nommees.append(livre.couverture);
    QMap<QString, QByteArray> etat;
    QDirIterator suite(dossier_.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (suite.hasNext()) {
        const QString nom = dossier_.relativeFilePath(suite.next());
        const bool reste =
            QDir::match(QStringLiteral("*.??????"), nom) || nom.startsWith(QLatin1String("reprise.partielle."));
        const bool sansLivre =
            nom.contains(QLatin1String("/couvertures/")) && !nommees.contains(Couvertures::nom(suite.fileName()));
        if (!reste && !sansLivre && !nom.startsWith(QLatin1String("copies/")))
            etat.insert(nom, Fichier::lire(suite.filePath(), Fichier::Borne::image).value_or(QByteArray()));
    }
    return etat;
}

QList<GesteDeMaison> gestesDeMaison()
{
    return {{"importer", importer, true},
            {"la copie du jour", copier, true},
            {"un livre et sa couverture", changerDeCouverture, false}};
}

} // namespace Quillet
