#pragma once

#include "echanges/ColonneDeListe.h"
#include "model/Donnees.h"
#include "model/controle/Regles.h"

#include <QByteArray>
#include <QList>
#include <QStringList>

#include <optional>

namespace Quillet {

// One row of a list: what would become of a book.
struct RangeeDeListe
{
    enum class Sort { ajoutee, changee, inchangee, refusee };

    qsizetype numero = 0; // as a spreadsheet counts it
    Sort sort = Sort::inchangee;
    Livre livre;                // as it would be; of a refused row, as far as it could be read
    std::optional<Livre> avant; // the book that it speaks of; none for a new one
    QStringList refus;          // sentences, each headed by its column

    [[nodiscard]] bool prise() const { return sort == Sort::ajoutee || sort == Sort::changee; }
};

// Books as a spreadsheet lists them. A list adds and changes, by number, else by ISBN, else by title and author; it
// never removes: a book it does not name stays, and so does what it leaves blank of one it names.
struct ListeDeLivres
{
    struct Tete
    {
        QString nom;
        std::optional<ColonneDeListe> colonne; // none: not taken
    };

    QList<Tete> tetes;
    QList<RangeeDeListe> rangees;

    // Throws Echec for what is no list of books at all.
    static ListeDeLivres lue(const QByteArray &octets, const Donnees &donnees, const Regles::Reperes &reperes);
    static QByteArray ecrite(const Donnees &donnees);

    [[nodiscard]] qsizetype nombre(RangeeDeListe::Sort sort) const;
    // These books, with the rows that can be taken: changed where they are, new ones at the end.
    [[nodiscard]] QList<Livre> appliquee(QList<Livre> livres) const;
};

} // namespace Quillet
