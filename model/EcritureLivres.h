#pragma once

#include "model/Livre.h"

#include <QByteArray>
#include <QHash>
#include <QList>

namespace Quillet {

// The text of the file of books, of which most are as they were the last time: those are not put in words again.
class EcritureLivres
{
public:
    // As `Json::encoder` gives it.
    QByteArray encoder(const QList<Livre> &livres);

private:
    struct Ecrit
    {
        Livre livre;
        QByteArray texte;
    };
    QHash<qint64, Ecrit> ecrits_;
};

} // namespace Quillet
