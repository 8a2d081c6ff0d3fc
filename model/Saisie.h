#pragma once

#include "model/Quantite.h"

#include <QString>
#include <QUrl>

#include <optional>
#include <variant>

// What a seller typed into a field, read as a quantity, or the sentence that refuses it.
namespace Quillet::Saisie {

struct Refus
{
    QString raison;
};

template <typename T>
using Lecture = std::variant<T, Refus>;

// The sentence that refuses; empty once the value is what was read.
template <typename T>
QString prendre(const Lecture<T> &lecture, T &valeur)
{
    if (const auto *refus = std::get_if<Refus>(&lecture))
        return refus->raison;
    valeur = std::get<T>(lecture);
    return {};
}

// Euros with comma or point, at most two decimals: "18,5", "1 234.50 €".
Lecture<Centimes> prix(const QString &texte);
// Whole grams; nothing typed: not weighed.
Lecture<std::optional<Grammes>> poids(const QString &texte);
// How many there may be is a rule of books.
Lecture<qint64> pages(const QString &texte);
// Nothing typed: none. Which site it may lead to is not said here.
Lecture<std::optional<QUrl>> adresse(const QString &texte);

// How the field shows them: "18,50", "1 250".
QString ecrit(Centimes prix);
QString ecrit(const std::optional<Grammes> &poids);

} // namespace Quillet::Saisie
