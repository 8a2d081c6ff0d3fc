#pragma once

#include <QString>

// Numbers whose last digit checks the others: a typing error shows. Spaces count for nothing.
namespace Quillet::NumeroDeControle {

// ISBN-13 or ISBN-10, with or without dashes.
bool isbn(const QString &numero);
// Fourteen digits. La Poste's own numbers, which follow another rule, are refused.
bool siret(const QString &numero);

} // namespace Quillet::NumeroDeControle
