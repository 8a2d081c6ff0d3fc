#pragma once

#include <QtGlobal>

#include <compare>
#include <limits>
#include <optional>

namespace Quillet {

// A whole number of one unit. Two units never mix, and arithmetic that leaves 64 bits stops the program:
// a wrong amount must not reach a buyer.
template <typename Unite>
class Quantite
{
public:
    constexpr Quantite() = default;
    constexpr explicit Quantite(qint64 valeur) : valeur_(valeur) {}

    // What any source gives passes here, and a source gives nothing negative. None without a number, or for one that is
    // too large; a sum of several may be as much larger.
    static constexpr std::optional<Quantite> bornee(std::optional<qint64> valeur, qint64 termes = 1)
    {
        const qint64 borne = termes * Unite::maximum;
        return valeur && 0 <= *valeur && *valeur <= borne ? std::optional(Quantite{*valeur}) : std::nullopt;
    }

    [[nodiscard]] constexpr qint64 valeur() const { return valeur_; }

    constexpr auto operator<=>(const Quantite &) const = default;

    friend constexpr Quantite operator+(Quantite a, Quantite b)
    {
        qint64 somme = 0;
        arreterSi(__builtin_add_overflow(a.valeur_, b.valeur_, &somme));
        return Quantite{somme};
    }
    friend constexpr Quantite operator-(Quantite a, Quantite b)
    {
        qint64 difference = 0;
        arreterSi(__builtin_sub_overflow(a.valeur_, b.valeur_, &difference));
        return Quantite{difference};
    }
    friend constexpr Quantite operator*(Quantite a, qint64 facteur)
    {
        qint64 produit = 0;
        arreterSi(__builtin_mul_overflow(a.valeur_, facteur, &produit));
        return Quantite{produit};
    }
    // Truncates toward zero.
    friend constexpr Quantite operator/(Quantite a, qint64 diviseur)
    {
        arreterSi(diviseur == 0 || (diviseur == -1 && a.valeur_ == std::numeric_limits<qint64>::min()));
        return Quantite{a.valeur_ / diviseur};
    }
    constexpr Quantite operator-() const { return Quantite{} - *this; }
    constexpr Quantite &operator+=(Quantite autre) { return *this = *this + autre; }

private:
    static constexpr void arreterSi(bool depassement)
    {
        if (depassement)
            qFatal("Dépassement arithmétique sur une quantité");
    }

    qint64 valeur_ = 0;
};

// The most that is taken of each unit, from a typist, a public page or a data file. What any order can make of it stays
// far below 64 bits.
struct UniteCentime
{
    static constexpr qint64 maximum = 9'999'999;
};
struct UniteGramme
{
    static constexpr qint64 maximum = 999'999;
};
struct UniteCentiemeDePourcent
{
    static constexpr qint64 maximum = 10'000;
};

using Centimes = Quantite<UniteCentime>;
using Grammes = Quantite<UniteGramme>;
// Hundredths of a percent: 290 is 2,90 %.
using Taux = Quantite<UniteCentiemeDePourcent>;

} // namespace Quillet
