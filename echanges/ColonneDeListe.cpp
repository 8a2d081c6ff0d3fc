#include "echanges/ColonneDeListe.h"

#include <QList>

namespace Quillet {

QString ColonnesDeListe::cle(const QString &texte)
{
    QString cle;
    for (const QChar signe : texte.normalized(QString::NormalizationForm_KD).toLower())
        if (signe == u'œ')
            cle += QStringLiteral("oe");
        else if (signe.isLetterOrNumber() && !signe.isMark())
            cle += signe;
    return cle;
}

std::optional<ColonneDeListe> ColonnesDeListe::trouvee(const QString &tete)
{
    const QString cherchee = cle(tete);
    if (cherchee.isEmpty())
        return std::nullopt;
    for (const ColonneDeListe colonne : tous<ColonneDeListe>) {
        const auto [brut, nom, autres] = traits(colonne);
        if (cherchee == cle(nom.toString()) || cherchee == cle(QString::fromLatin1(brut))
            || autres.split(u' ').contains(QStringView(cherchee)))
            return colonne;
    }
    return std::nullopt;
}

} // namespace Quillet
