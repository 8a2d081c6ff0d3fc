#include "ui/ComplementFrancais.h"

#include <QHash>

namespace Quillet {

QString ComplementFrancais::translate(const char *contexte, const char *texte, const char *, int) const
{
    if (qstrcmp(contexte, "QPrintSettingsOutput") != 0)
        return {};
    static const QHash<QByteArray, QString> textes{
        {"Double Sided Printing", QStringLiteral("Impression recto verso")},
        {"Off", QStringLiteral("Non")},
        {"Long side binding", QStringLiteral("Reliure sur le grand côté")},
        {"Short side binding", QStringLiteral("Reliure sur le petit côté")},
    };
    return textes.value(texte);
}

} // namespace Quillet
