// Each line is the number of an invoice that has left: whatever was typed, the series goes on. A first line of its own
// is what the preferences hold already.
#include "documents/NumerotationFactures.h"
#include "fuzz/Cible.h"

#include <QFile>
#include <QTemporaryDir>

#include <limits>

using namespace Quillet;

namespace {

using Rapport = NumerotationFactures::Rapport;

qint64 rang(const QString &numero)
{
    return numero.section(u'-', 1).toLongLong();
}

// Nothing comes after a number of a year to come, nor after the last rank that can be read.
bool finDeSerie(const NumerotationFactures &numerotation, QDate date)
{
    const QString numero = numerotation.preferences.texte(QStringLiteral("derniereFacture.davrel"));
    return NumerotationFactures::rapport(numero, date) == Rapport::posterieur
           || numero.contains(QString::number(std::numeric_limits<qint64>::max()));
}

void verifier(NumerotationFactures &numerotation, const QString &numero, QDate date)
{
    const QString avant = numerotation.prochain(Vendeur::davrel, date);
    const QString autre = numerotation.prochain(Vendeur::mireva, date);
    exiger(NumerotationFactures::rapport(avant, date) == Rapport::dansLaSerie, "un numero de l'annee");
    numerotation.retenir(numero, Vendeur::davrel);
    const QString apres = numerotation.prochain(Vendeur::davrel, date);
    exiger(NumerotationFactures::rapport(apres, date) == Rapport::dansLaSerie, "toujours un numero de l'annee");
    exiger(NumerotationFactures::rapport(numero, date) != Rapport::aucun || apres == avant,
           "ce qui n'est pas un numero ne change rien");
    const bool fini = finDeSerie(numerotation, date);
    exiger(rang(apres) >= rang(avant) || fini, "une serie ne recule pas");
    exiger(numero != avant || apres != avant || fini, "un numero emis n'est plus propose");
    exiger(numerotation.prochain(Vendeur::mireva, date) == autre, "chaque vendeur a sa serie");
    numerotation.retenir(numero, Vendeur::davrel);
    exiger(numerotation.prochain(Vendeur::davrel, date) == apres, "retenu une fois pour toutes");
}

// A file that is not understood gives no number until one is kept, and its bytes stay.
void reprendreApresPerte(NumerotationFactures &numerotation, const QString &fichier)
{
    const auto octets = Fichier::lire(fichier, Fichier::Borne::preferences);
    numerotation.retenir(QStringLiteral("2026-005"), Vendeur::davrel);
    exiger(numerotation.prochain(Vendeur::davrel, QDate(2026, 3, 2)) == QLatin1String("2026-006"), "la suite reprend");
    const QString copie = fichier + QStringLiteral(".illisible");
    exiger(Fichier::lire(copie, Fichier::Borne::preferences) == octets, "rien ne se perd");
    QFile::remove(copie);
    try {
        static_cast<void>(numerotation.prochain(Vendeur::mireva, QDate(2026, 3, 2)));
        exiger(false, "un numero perdu n'est pas propose");
    } catch (const ErreurStockage &) { // as wanted
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *octets, std::size_t taille)
{
    static const QTemporaryDir dossier;
    const QStringList lignes = QString::fromUtf8(contenu(octets, taille)).split(u'\n').mid(0, 8);
    QFile preferences(dossier.filePath(QStringLiteral("Quillet.ini")));
    exiger(preferences.open(QIODevice::WriteOnly), "preferences");
    preferences.write("[General]\nderniereFacture.davrel=" + lignes.first().toUtf8() + '\n');
    preferences.close();
    NumerotationFactures numerotation{Preferences(preferences.fileName())};
    if (numerotation.preferences.chercher(QString()).perte) {
        reprendreApresPerte(numerotation, preferences.fileName());
        return 0;
    }
    for (const QString &numero : lignes.mid(1))
        verifier(numerotation, numero, QDate(2026, 3, 2));
    return 0;
}
