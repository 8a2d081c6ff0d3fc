#include "textes/SansAccents.h"

namespace Quillet {

QString sansAccents(const QString &texte)
{
    QString simple;
    for (const QChar c : texte.normalized(QString::NormalizationForm_KD).toLower()) {
        if (c == u'œ')
            simple += QStringLiteral("oe");
        else if (c == u'æ')
            simple += QStringLiteral("ae");
        else if (c == u'’')
            simple += u'\'';
        else if (!c.isMark())
            simple += c;
    }
    return simple;
}

} // namespace Quillet
