#pragma once

#include "model/Livre.h"

#include <QList>
#include <QString>

namespace Quillet {

// A field of a book that is typed: what it is called, and how its text becomes the book's.
struct ChampDuLivre
{
    QString cle; // by which rules name it: "isbn"
    QString libelle;
    QString unite;  // behind the field, maybe none
    QString invite; // an example, or what an empty field means
    // What the field shows of a book.
    QString (*ecrit)(const Livre &livre);
    // Has the book take a text, or says why it cannot: then the book is as it was.
    QString (*prendre)(const QString &texte, Livre &livre);

    // In the order in which they are filled in.
    static QList<ChampDuLivre> tous();
};

} // namespace Quillet
