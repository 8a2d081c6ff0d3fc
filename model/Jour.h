#pragma once

#include <QDate>
#include <QString>

#include <compare>
#include <utility>

namespace Quillet {

// A day as files and pages write it, yyyy-mm-dd, compared as text: one that no calendar has stays as it was written.
class Jour
{
public:
    Jour() = default;
    explicit Jour(QString texte) : texte_(std::move(texte)) {}
    Jour(QDate date) : texte_(date.toString(Qt::ISODate)) {}

    [[nodiscard]] const QString &texte() const { return texte_; }
    // Invalid unless the text is a day of the calendar, written as above.
    [[nodiscard]] QDate date() const
    {
        const QDate lu = QDate::fromString(texte_, Qt::ISODate); // also reads other forms
        return Jour(lu) == *this ? lu : QDate();
    }

    bool operator==(const Jour &) const = default;
    std::strong_ordering operator<=>(const Jour &autre) const { return texte_.compare(autre.texte_) <=> 0; }

private:
    QString texte_;
};

} // namespace Quillet
