#pragma once

#include "model/Enumeration.h"

#include <QHashFunctions>
#include <QString>

#include <compare>
#include <concepts>
#include <utility>

namespace Quillet {

// What names a thing of one kind in the files: any text, compared as text, also one that names nothing. Two kinds
// never mix. For an enumeration it holds a raw value, or a text that is none.
template <typename Sorte>
class Cle
{
public:
    Cle() = default;
    explicit Cle(QString texte) : texte_(std::move(texte)) {}
    template <std::same_as<Sorte> Enum> // of an enumeration alone, as `cas`
    Cle(Enum cas) : texte_(brut(cas))
    {
    }

    [[nodiscard]] const QString &texte() const { return texte_; }
    [[nodiscard]] auto cas() const { return depuisBrut<Sorte>(texte_); }

    bool operator==(const Cle &) const = default;
    std::strong_ordering operator<=>(const Cle &autre) const { return texte_.compare(autre.texte_) <=> 0; }
    friend std::size_t qHash(const Cle &cle, std::size_t graine = 0) { return ::qHash(cle.texte_, graine); }

private:
    QString texte_;
};

} // namespace Quillet
