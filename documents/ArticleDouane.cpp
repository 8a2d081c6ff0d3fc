#include "documents/ArticleDouane.h"

namespace Quillet {

QList<ArticleDouane> articlesDouane(const Calcul &calcul, const QString &codeSH)
{
    QList<ArticleDouane> articles;
    for (const auto &[livre, quantite] : calcul.lignes)
        articles.append({.id = livre.id,
                         .description = QStringLiteral("Printed book – ") + livre.titre,
                         .quantite = quantite,
                         .poidsUnitaire = livre.poids.value_or(Grammes{}),
                         .valeurUnitaire = livre.prix,
                         .codeSH = codeSH,
                         .origine = QStringLiteral("France")});
    return articles;
}

} // namespace Quillet
