#pragma once

#include "model/Livre.h"

#include <QHash>
#include <QList>
#include <QString>

#include <optional>
#include <variant>

namespace Quillet {

// Finds of which book a row of a list speaks.
class RapprochementDeListe
{
public:
    explicit RapprochementDeListe(const QList<Livre> &livres);

    // What the row says of it: 0 and empty for what it does not say.
    struct Indices
    {
        qint64 id = 0;
        QString titre;
        QString auteur;
        QString isbn;
    };
    struct Doute
    {
        QString raison; // a sentence

        bool operator==(const Doute &) const = default;
    };
    // The rank of a book, or none for a new one, or why it cannot be told.
    using Resultat = std::variant<std::optional<qsizetype>, Doute>;
    [[nodiscard]] Resultat rapprocher(const Indices &indices) const;

    // The same for two texts of one book: an ISBN's digits; a title and its author.
    static QString cleIsbn(const QString &isbn);
    static QString cleTitre(const QString &titre, const QString &auteur);

private:
    [[nodiscard]] Resultat parCle(const QHash<QString, QList<qsizetype>> &rangs, const QString &cle,
                                  const QString &commun) const;

    QList<Livre> livres_;
    QHash<qint64, qsizetype> ids_;
    QHash<QString, QList<qsizetype>> isbn_;
    QHash<QString, QList<qsizetype>> titresEtAuteurs_;
    QHash<QString, QList<qsizetype>> titres_;
};

} // namespace Quillet
