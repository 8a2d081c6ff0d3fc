#include "model/EditionLivres.h"

#include <QSet>

#include <algorithm>
#include <limits>
#include <tuple>

namespace Quillet {

namespace {

// What a new book is given of the seller's last one.
constexpr QString Livre::*communs[] = {&Livre::auteur, &Livre::format, &Livre::langue};

Livre modele(const QList<Livre> &livres, Vendeur vendeur)
{
    for (auto livre = livres.crbegin(); livre != livres.crend(); ++livre)
        if (livre->vendeur == vendeur)
            return *livre;
    Livre premier;
    premier.langue = QStringLiteral("Français");
    return premier;
}

qint64 nouveauNumero(const QList<Livre> &livres)
{
    QSet<qint64> pris;
    qint64 plusGrand = 0;
    for (const Livre &livre : livres) {
        pris.insert(livre.id);
        plusGrand = std::max(plusGrand, livre.id);
    }
    if (plusGrand < std::numeric_limits<qint64>::max())
        return plusGrand + 1;
    qint64 libre = 1;
    while (pris.contains(libre))
        ++libre;
    return libre;
}

} // namespace

Livre EditionLivres::nouveau(const QList<Livre> &livres, Vendeur vendeur)
{
    Livre livre;
    livre.vendeur = vendeur;
    livre.disponible = true;
    livre.teinte = {74, 96, 116};
    const Livre dernier = modele(livres, vendeur);
    for (const auto champ : communs)
        livre.*champ = dernier.*champ;
    return livre;
}

Livre EditionLivres::copie(const Livre &livre)
{
    Livre copie = livre;
    const QString suite = QStringLiteral(" (copie)");
    copie.titre += suite;
    copie.titreComplet += suite;
    copie.isbn.clear();
    copie.lienPaypal.reset();
    copie.prixPaypal.reset();
    copie.prixEcartes.reset();
    return copie;
}

void EditionLivres::confier(Livre &brouillon, Vendeur vendeur, const QList<Livre> &livres)
{
    const Livre avant = modele(livres, brouillon.vendeur);
    const Livre apres = modele(livres, vendeur);
    for (const auto champ : communs)
        if (brouillon.*champ == avant.*champ)
            brouillon.*champ = apres.*champ;
    brouillon.vendeur = vendeur;
}

bool EditionLivres::reporter(const Livre &avant, const Livre &saisi, Livre &ailleurs)
{
    const auto champ = [&](auto membre) {
        if (saisi.*membre == avant.*membre || saisi.*membre == ailleurs.*membre)
            return true;
        const bool libre = ailleurs.*membre == avant.*membre;
        if (libre)
            ailleurs.*membre = saisi.*membre;
        return libre;
    };
    return std::apply([&](const auto &...champs) { return (int{champ(champs.membre)} & ...) != 0; },
                      Json::champs<Livre>);
}

QList<Livre> EditionLivres::avec(QList<Livre> livres, Livre livre)
{
    livre.id = nouveauNumero(livres);
    livres.append(livre);
    return livres;
}

QList<Livre> EditionLivres::sans(QList<Livre> livres, qint64 id)
{
    livres.removeIf([id](const Livre &livre) { return livre.id == id; });
    return livres;
}

QList<Livre> EditionLivres::deplace(QList<Livre> livres, qint64 id, Cote cote, qint64 voisin)
{
    const auto place = [&livres](qint64 cherche) { return std::ranges::find(livres, cherche, &Livre::id); };
    if (id == voisin || place(id) == livres.end() || place(voisin) == livres.end())
        return livres;
    const Livre livre = livres.takeAt(place(id) - livres.begin());
    livres.insert(place(voisin) - livres.begin() + (cote == Cote::apres ? 1 : 0), livre);
    return livres;
}

} // namespace Quillet
