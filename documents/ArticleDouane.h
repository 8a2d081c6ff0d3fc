#pragma once

#include "model/Calcul.h"

#include <QList>
#include <QString>

namespace Quillet {

// One line of a customs declaration: a book of the order.
struct ArticleDouane
{
    qint64 id = 0; // the book's
    QString description;
    int quantite = 0;
    Grammes poidsUnitaire;   // zero for a book not yet weighed
    Centimes valeurUnitaire; // the book alone, never postage
    QString codeSH;
    QString origine;

    bool operator==(const ArticleDouane &) const = default;
};

// In the order of the computation's lines. Descriptions are in English, whatever the buyer's language.
QList<ArticleDouane> articlesDouane(const Calcul &calcul, const QString &codeSH);

} // namespace Quillet
