#include "textes/FiltreLivres.h"

#include <algorithm>

namespace Quillet {

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

} // namespace

QStringList FiltreLivres::mots(const QString &recherche)
{
    return simplifie(recherche).split(u' ', Qt::SkipEmptyParts);
}

QString FiltreLivres::texteCherche(const Livre &livre)
{
    const QString sansTirets = QString(livre.isbn).remove(u'-').remove(u' ');
    return simplifie(QStringList{livre.titre, livre.titreComplet, livre.auteur, livre.isbn, sansTirets}.join(u'\n'));
}

bool FiltreLivres::retient(const Candidat &candidat) const
{
    const Livre &livre = candidat.livre;
    if (vendeur && livre.vendeur != *vendeur)
        return false;
    if ((etat == Etat::aReporter && candidat.boutonsAReporter == 0) || (etat == Etat::aPeser && livre.poids)
        || (etat == Etat::epuises && livre.disponible))
        return false;
    return std::ranges::all_of(recherche, [&](const QString &mot) { return candidat.texte.contains(mot); });
}

} // namespace Quillet
