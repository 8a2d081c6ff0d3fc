#include "ui/commande/ParcoursDeLaGrille.h"

#include "model/BonDeCommande.h"
#include "textes/SansAccents.h"

#include <algorithm>

namespace Quillet {

namespace {

bool unMotCommencePar(const QString &titre, const QString &debut)
{
    const QString simple = sansAccents(titre);
    for (qsizetype i = simple.indexOf(debut); i >= 0; i = simple.indexOf(debut, i + 1))
        if (i == 0 || !simple[i - 1].isLetterOrNumber())
            return true;
    return false;
}

std::optional<int> premierDepuis(int depuis, const QStringList &titres, const QString &debut)
{
    const int nombre = static_cast<int>(titres.size());
    for (int pas = 0; pas < nombre; ++pas)
        if (const int rang = (depuis + pas) % nombre; unMotCommencePar(titres[rang], debut))
            return rang;
    return std::nullopt;
}

} // namespace

std::optional<int> ParcoursDeLaGrille::versOu(int touche, int rang, int nombre, int colonnes)
{
    const int dernier = nombre - 1;
    const bool auDernierRang = rang / colonnes == dernier / colonnes;
    switch (touche) {
    case Qt::Key_Left:
        return std::max(0, rang - 1);
    case Qt::Key_Right:
        return std::min(dernier, rang + 1);
    case Qt::Key_Up:
        return rang < colonnes ? rang : rang - colonnes;
    case Qt::Key_Down: // under a hole of the last row, its last cover
        return auDernierRang ? rang : std::min(dernier, rang + colonnes);
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return dernier;
    default:
        return std::nullopt;
    }
}

std::optional<int> ParcoursDeLaGrille::titre(const QStringList &titres, const QString &lettres, int rang)
{
    const QString debut = sansAccents(lettres);
    if (debut.isEmpty())
        return std::nullopt;
    if (debut.size() > 1)
        if (const auto trouve = premierDepuis(rang, titres, debut))
            return trouve;
    const bool memeLettre = debut.count(debut.front()) == debut.size();
    return memeLettre ? premierDepuis(rang + 1, titres, debut.first(1)) : std::nullopt;
}

int ParcoursDeLaGrille::nombre(std::optional<int> commence, int chiffre)
{
    const int suite = 10 * commence.value_or(0) + chiffre;
    return suite <= BonDeCommande::quantiteMaximale ? suite : chiffre;
}

} // namespace Quillet
