#include "watch/ErreurReleve.h"

namespace Quillet {

ErreurReleve ErreurReleve::reseau(const QString &detail)
{
    return {Cas::reseau, detail, QStringLiteral("Page inaccessible : ") + detail + u'.'};
}

ErreurReleve ErreurReleve::pageIllisible(const QString &detail)
{
    return {Cas::pageIllisible, detail,
            QStringLiteral("La page a changé de forme : ") + detail + QStringLiteral(". Vérifiez à la main.")};
}

} // namespace Quillet
