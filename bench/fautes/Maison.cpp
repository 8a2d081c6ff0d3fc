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

Livre avecCouverture(const Maison &maison, Livre livre)
{
    const QDir couvertures(maison.dossier().filePath(QStringLiteral("donnees/couvertures")));
    livre.couverture =
        Couvertures::deposer(couvertures, livre.titre, {image(9, int(livre.id)), QStringLiteral("png"), livre.teinte});
    return livre;
}

void changerDeCouverture(const Maison &maison, const QString &)
{
    const auto catalogue = maison.catalogue();
    catalogue->modifier({avecCouverture(maison, catalogue->donnees().livres.first())});
}

void ajouterUnLivre(const Maison &maison, const QString &)
{
    constexpr qint64 numero = 99;
    const auto catalogue = maison.catalogue();
    QList<Livre> livres = catalogue->donnees().livres;
    if (livres.last().id != numero)
        livres.append(livres.first());
    livres.last().id = numero;
    livres.last() = avecCouverture(maison, livres.last());
    catalogue->remplacer(livres);
}

void commencer(const Maison &maison, const QString &)
{
    if (!maison.catalogue()->donnees().personnelles) // the first steps are not proposed twice
        maison.creerLesDonnees(1);
}

} // namespace

Maison::Maison(Ressources ressources, const QString &dossier)
    : ressources_(std::move(ressources)),
      dossier_(dossier),
      preferences_(dossier_.filePath(QStringLiteral("Quillet.ini")))
{
}

void Maison::creerLesDonnees(int rang) const
{
    QList<Livre> livres = ressources_.lire<QList<Livre>>(QStringLiteral("livres")).first(2 + rang);
    QHash<QString, QByteArray> couvertures;
    for (Livre &livre : livres) {
        livre.prix = Centimes{1000 + rang};
        livre.couverture = QStringLiteral("livre-%1").arg(livre.id); // the same name, of other bytes
        couvertures.insert(livre.couverture + QStringLiteral(".png"), image(rang, int(livre.id)));
    }
    DossierPersonnel::creer(Stockage(dossier_).donneesPersonnelles(), ressources_,
                            ressources_.lire<Reglages>(QStringLiteral("reglages")), livres, couvertures);
}

void Maison::installer(int rang) const
{
    if (rang > 0)
        creerLesDonnees(rang);
    FraisPaypal frais = ressources_.lire<Reglages>(QStringLiteral("reglages")).fraisPaypal;
    frais.fixe = Centimes{10 + rang};
    Stockage(dossier_).ecrire(frais, Stockage::fichierDesFrais());
    if (rang > 1)
        Stockage(dossier_).ecrire(desTarifs("2099-01-01", Centimes{1}),
                                  QStringLiteral("tarifs-colissimo-2099-01-01.json"));
    NumerotationFactures{preferences_}.retenir(QStringLiteral("2026-00%1").arg(1 + rang), Vendeur::davrel);
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
        const bool reste = QDir::match(QStringLiteral("*.??????"), suite.fileName())
                           || nom.startsWith(QLatin1String("reprise.partielle."))
                           || nom.startsWith(QLatin1String("donnees.nouveau/"));
        const bool sansLivre =
            nom.contains(QLatin1String("/couvertures/")) && !nommees.contains(Couvertures::nom(suite.fileName()));
        if (!reste && !sansLivre && !nom.startsWith(QLatin1String("copies/")))
            etat.insert(nom, Fichier::lire(suite.filePath(), Fichier::Borne::image).value_or(QByteArray()));
    }
    return etat;
}

QList<GesteDeMaison> gestesDeMaison()
{
    return {{"importer", 1, importer, true},
            {"importer le premier", 0, importer, true},
            {"la copie du jour", 1, copier, true},
            {"les premiers livres et leurs couvertures", 0, commencer, false},
            {"un nouveau livre et sa couverture", 1, ajouterUnLivre, false},
            {"une autre couverture", 1, changerDeCouverture, false}};
}

} // namespace Quillet
