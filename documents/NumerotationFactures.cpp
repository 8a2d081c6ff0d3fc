#include "documents/NumerotationFactures.h"

#include "model/ChiffresAscii.h"
#include "model/Enumeration.h"

#include <limits>
#include <optional>

namespace Quillet {

namespace {

struct Numero
{
    qint64 annee = 0;
    qint64 rang = 0;

    auto operator<=>(const Numero &) const = default;
};

QString cle(Vendeur vendeur)
{
    return QStringLiteral("derniereFacture.") + brut(vendeur);
}

// Base 10, nothing around the digits but a sign.
std::optional<qint64> entier(QStringView texte)
{
    const QStringView chiffres = texte.startsWith(u'+') ? texte.sliced(1) : texte;
    if (!queDesChiffres(chiffres))
        return std::nullopt;
    bool lu = false;
    const qint64 valeur = chiffres.toLongLong(&lu);
    return lu ? std::optional(valeur) : std::nullopt;
}

std::optional<Numero> decomposer(const QString &numero)
{
    const QStringList parties = numero.split(u'-', Qt::SkipEmptyParts);
    if (parties.size() != 2)
        return std::nullopt;
    const auto annee = entier(parties[0]);
    const auto rang = entier(parties[1]);
    return annee && rang ? std::optional(Numero{*annee, *rang}) : std::nullopt;
}

QString composer(const Numero &numero)
{
    return QStringLiteral("%1-%2").arg(numero.annee).arg(numero.rang, 3, 10, QLatin1Char('0'));
}

} // namespace

QString NumerotationFactures::prochain(Vendeur vendeur, QDate date) const
{
    return suivant(dernier(vendeur), date);
}

QString NumerotationFactures::suivant(const QString &dernier, QDate date)
{
    const auto retenu = decomposer(dernier);
    const bool suite = retenu && retenu->annee == date.year() && retenu->rang < std::numeric_limits<qint64>::max();
    return suite ? composer({date.year(), retenu->rang + 1}) : premier(date);
}

QString NumerotationFactures::dernier(Vendeur vendeur) const
{
    const auto trouvee = preferences.chercher(cle(vendeur));
    if (trouvee.perte)
        throw ErreurStockage(*trouvee.perte);
    return trouvee.texte;
}

QStringList NumerotationFactures::erreurs() const
{
    QStringList phrases;
    for (const Vendeur vendeur : tous<Vendeur>)
        try {
            if (const QString numero = dernier(vendeur); !numero.isEmpty() && !avance(numero, {}))
                phrases.append(
                    QStringLiteral("%1 : « %2 » n’est pas un numéro de facture, la suite de %3 recommencerait")
                        .arg(preferences.fichier(), numero, brut(vendeur)));
        } catch (const ErreurStockage &erreur) {
            phrases.append(erreur.texte());
        }
    phrases.removeDuplicates(); // one file holds them all
    return phrases;
}

void NumerotationFactures::retenir(const QString &numero, Vendeur vendeur)
{
    if (avance(numero, preferences.chercher(cle(vendeur)).texte)) // after a loss, this is where the series starts again
        preferences.ecrire(cle(vendeur), numero);
}

void NumerotationFactures::reprendre(const QString &numero, Vendeur vendeur)
{
    const auto trouvee = preferences.chercher(cle(vendeur));
    if (trouvee.perte || trouvee.texte != numero)
        preferences.ecrire(cle(vendeur), numero);
}

bool NumerotationFactures::avance(const QString &numero, const QString &dernier)
{
    const auto retenu = decomposer(numero);
    const auto precedent = decomposer(dernier);
    return retenu && (!precedent || *precedent < *retenu);
}

NumerotationFactures::Rapport NumerotationFactures::rapport(const QString &numero, QDate date)
{
    const auto lu = decomposer(numero);
    if (!lu)
        return Rapport::aucun;
    if (lu->annee == date.year())
        return Rapport::dansLaSerie;
    return lu->annee < date.year() ? Rapport::anterieur : Rapport::posterieur;
}

QString NumerotationFactures::premier(QDate date)
{
    return composer({date.year(), 1});
}

} // namespace Quillet
