#include "textes/TextesGestes.h"

namespace Quillet {

QString TextesGestes::prix(const Livre &livre)
{
    return QStringLiteral("prix de « %1 »").arg(livre.titre);
}

QString TextesGestes::poids(const Livre &livre)
{
    return QStringLiteral("poids de « %1 »").arg(livre.titre);
}

QString TextesGestes::disponibilite(const Livre &livre)
{
    return QStringLiteral("disponibilité de « %1 »").arg(livre.titre);
}

QString TextesGestes::garde(const Livre &livre)
{
    return QStringLiteral("prix gardé de « %1 »").arg(livre.titre);
}

QString TextesGestes::report(const Livre &livre, qsizetype boutons)
{
    return boutons == 1 ? QStringLiteral("prix reporté de « %1 »").arg(livre.titre)
                        : QStringLiteral("%1 prix reportés de « %2 »").arg(boutons).arg(livre.titre);
}

QString TextesGestes::retour()
{
    return QStringLiteral("retour aux valeurs d’origine");
}

} // namespace Quillet
