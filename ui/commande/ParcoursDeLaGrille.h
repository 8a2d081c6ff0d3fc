#pragma once

#include <QStringList>

#include <optional>

// What keys do in the grid of covers, whose ranks go from left to right, then down.
namespace Quillet::ParcoursDeLaGrille {

// The cover that an arrow, Home or End leads to, never out of the grid; nothing for another key.
std::optional<int> versOu(int touche, int rang, int nombre, int colonnes);

// The next title one of whose words begins with what was typed. A letter alone, or the same again, goes on from `rang`
// to another; more of a word may stay there.
std::optional<int> titre(const QStringList &titres, const QString &lettres, int rang);

// What a digit makes of the number that was begun just before, if any: 1 then 2, twelve.
int nombre(std::optional<int> commence, int chiffre);

} // namespace Quillet::ParcoursDeLaGrille
