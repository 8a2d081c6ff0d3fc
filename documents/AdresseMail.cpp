#include "documents/AdresseMail.h"

#include <algorithm>

namespace Quillet {

bool AdresseMail::estSeule(const QString &texte)
{
    const QString adresse = texte.trimmed();
    const auto interdite = [](QChar lettre) {
        return QStringView(u",;\"<>()[]:\\").contains(lettre) || lettre.isSpace() || !lettre.isPrint();
    };
    return adresse.count(u'@') == 1 && !adresse.startsWith(u'@') && !adresse.endsWith(u'@')
           && !adresse.contains(QLatin1String("=?")) // an encoded word, which a mail program would read as other text
           && std::ranges::none_of(adresse, interdite);
}

} // namespace Quillet
