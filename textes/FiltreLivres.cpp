#include "textes/FiltreLivres.h"

#include "textes/SansAccents.h"

#include <algorithm>

namespace Quillet {

QStringList FiltreLivres::mots(const QString &recherche)
{
    return sansAccents(recherche).split(u' ', Qt::SkipEmptyParts);
}

QString FiltreLivres::texteCherche(const Livre &livre)
{
    const QString sansTirets = QString(livre.isbn).remove(u'-').remove(u' ');
    return sansAccents(QStringList{livre.titre, livre.titreComplet, livre.auteur, livre.isbn, sansTirets}.join(u'\n'));
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
