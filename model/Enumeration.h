#pragma once

#include <QString>

#include <array>
#include <concepts>
#include <cstddef>
#include <optional>
#include <type_traits>

namespace Quillet {

// An enumeration whose cases count from 0 and are stored as text names each of them in a `valeurBrute` beside it, a
// `switch` without default: the compiler asks for the name of a new case, and all else follows from it.
template <typename Enum>
concept Enumeration = std::is_enum_v<Enum> && std::same_as<decltype(valeurBrute(Enum{})), const char *>;

namespace EnumerationDetail {

template <Enumeration Enum>
consteval std::size_t nombre()
{
    std::size_t nombre = 0;
    while (valeurBrute(static_cast<Enum>(nombre)))
        ++nombre;
    return nombre;
}

template <Enumeration Enum>
consteval auto liste()
{
    std::array<Enum, nombre<Enum>()> liste{};
    for (std::size_t rang = 0; rang < liste.size(); ++rang)
        liste[rang] = static_cast<Enum>(rang);
    return liste;
}

} // namespace EnumerationDetail

// Every case, in order.
template <Enumeration Enum>
inline constexpr auto tous = EnumerationDetail::liste<Enum>();

template <Enumeration Enum>
QString brut(Enum cas)
{
    return QString::fromLatin1(valeurBrute(cas));
}

template <Enumeration Enum>
std::optional<Enum> depuisBrut(const QString &texte)
{
    for (const Enum cas : tous<Enum>)
        if (texte == QLatin1String(valeurBrute(cas)))
            return cas;
    return std::nullopt;
}

} // namespace Quillet
