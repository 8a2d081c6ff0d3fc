#pragma once

#include "model/Livre.h"

#include <QList>

// What sellers do to the list of their own books.
namespace Quillet::EditionLivres {

// To be filled in, with what the seller's last book has in common with most others: author, format, language.
Livre nouveau(const QList<Livre> &livres, Vendeur vendeur);
// Another edition of a book, to be filled in: "Le Phare de sel (copie)", without what belongs to one book only.
Livre copie(const Livre &livre);
// Whoever else sells a draft: what it was given of the former seller's last book is given of the new one's.
void confier(Livre &brouillon, Vendeur vendeur, const QList<Livre> &livres);

// Gives a book that was changed elsewhere what was typed over `avant`, the same before. False: a part of it changed
// there too, and stays as it is there.
[[nodiscard]] bool reporter(const Livre &avant, const Livre &saisi, Livre &ailleurs);

// With this one at their end, whose number is a new one.
QList<Livre> avec(QList<Livre> livres, Livre livre);
QList<Livre> sans(QList<Livre> livres, qint64 id);

enum class Cote { avant, apres };
// With a book moved beside another one.
QList<Livre> deplace(QList<Livre> livres, qint64 id, Cote cote, qint64 voisin);

} // namespace Quillet::EditionLivres
