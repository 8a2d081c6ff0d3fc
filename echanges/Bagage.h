#pragma once

#include "echanges/Demeure.h"
#include "echanges/Manifeste.h"

#include <QByteArray>
#include <QStringList>

namespace Quillet {

// What is taken along of a state, ready to be put into an archive.
struct Bagage
{
    struct Piece
    {
        QString nom;
        QByteArray octets;
        QString fichier; // where a picture is read when it is packed; empty of all others
        qint64 taille = 0;
    };

    // Own data: to be left when they cannot be read.
    enum class Propres { prises, laissees };

    Manifeste manifeste;
    QList<Piece> pieces; // the manifest first, the rest by name
    QStringList absents; // what could not be taken, and why, in words
    QStringList lourdes; // of these, the pictures that are too large

    // Throws Echec when data in force cannot be read any more.
    static Bagage de(const Demeure &demeure, QDate jour, Propres propres = Propres::prises);
    [[nodiscard]] bool estVide() const { return pieces.size() <= 1; }
};

} // namespace Quillet
