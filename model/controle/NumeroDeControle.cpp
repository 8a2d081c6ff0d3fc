#include "model/controle/NumeroDeControle.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace Quillet {

namespace {

using Chiffres = std::vector<int>;

bool estUnTiret(QChar signe)
{
    return signe == u'-' || (signe >= QChar(0x2010) && signe <= QChar(0x2013));
}

// Nothing but digits and the signs between them, and an X for ten where the last digit of an ISBN-10 stands.
std::optional<Chiffres> chiffres(const QString &numero, bool (*separe)(QChar))
{
    Chiffres chiffres;
    for (qsizetype i = 0; i < numero.size(); ++i) {
        const QChar signe = numero[i];
        if (signe >= u'0' && signe <= u'9')
            chiffres.push_back(signe.unicode() - u'0');
        else if (signe.toUpper() == u'X' && chiffres.size() == 9 && i == numero.size() - 1)
            chiffres.push_back(10);
        else if (!separe(signe))
            return std::nullopt;
    }
    return chiffres;
}

bool isbn10(const Chiffres &chiffres)
{
    int somme = 0;
    for (int rang = 0; rang < 10; ++rang)
        somme += (10 - rang) * chiffres[static_cast<std::size_t>(rang)];
    return somme % 11 == 0;
}

bool isbn13(const Chiffres &chiffres)
{
    int somme = 0;
    for (std::size_t rang = 0; rang < 13; ++rang)
        somme += (rang % 2 == 0 ? 1 : 3) * chiffres[rang];
    return somme % 10 == 0 && chiffres[0] == 9 && chiffres[1] == 7 && chiffres[2] >= 8;
}

} // namespace

bool NumeroDeControle::isbn(const QString &numero)
{
    const auto lus = chiffres(numero, [](QChar signe) { return signe.isSpace() || estUnTiret(signe); });
    return lus && ((lus->size() == 10 && isbn10(*lus)) || (lus->size() == 13 && isbn13(*lus)));
}

bool NumeroDeControle::siret(const QString &numero)
{
    const auto lus = chiffres(numero, [](QChar signe) { return signe.isSpace(); });
    if (!lus || lus->size() != 14)
        return false;
    int somme = 0;
    for (std::size_t rang = 0; rang < 14; ++rang) {
        const int produit = (rang % 2 == 0 ? 2 : 1) * (*lus)[rang];
        somme += produit > 9 ? produit - 9 : produit;
    }
    return somme % 10 == 0;
}

} // namespace Quillet
