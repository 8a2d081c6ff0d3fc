#include "ui/livres/FiltreLivres.h"

#include <QStringList>

#include <algorithm>

namespace {

// Nobody types accents, ligatures or curly apostrophes to find a book.
QString simplifie(const QString &texte)
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

bool trouve(const QString &recherche, const Livre &livre)
{
    const QString ou = simplifie(QStringList{livre.titre, livre.titreComplet, livre.auteur, livre.isbn,
                                             QString(livre.isbn).remove(u'-').remove(u' ')}
                                     .join(u'\n'));
    const QStringList mots = simplifie(recherche).split(u' ', Qt::SkipEmptyParts);
    return std::ranges::all_of(mots, [&](const QString &mot) { return ou.contains(mot); });
}

} // namespace

bool FiltreLivres::retient(const Livre &livre, qsizetype aReporter) const
{
    if (vendeur && livre.vendeur != *vendeur)
        return false;
    if ((etat == Etat::aReporter && aReporter == 0) || (etat == Etat::aPeser && livre.poids)
        || (etat == Etat::epuises && livre.disponible))
        return false;
    return recherche.isEmpty() || trouve(recherche, livre);
}
