#pragma once

#include <QDate>
#include <QDir>
#include <QString>
#include <QStringList>

namespace Quillet {

// What a folder of data holds, and all that is to be corrected in it: what loading would refuse, and what it would let
// pass to surprise the sellers later.
struct ControleDonnees
{
    QStringList erreurs; // "livres[3].prix : entier attendu", file by file
    qsizetype livres = 0;
    qsizetype tarifs = 0;
    qsizetype destinations = 0;

    static ControleDonnees de(const QDir &dossier, QDate aujourdhui);
    // One line that ends the report.
    [[nodiscard]] QString bilan() const;
};

} // namespace Quillet
