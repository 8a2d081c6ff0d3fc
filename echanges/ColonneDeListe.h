#pragma once

#include "model/Enumeration.h"

#include <QString>
#include <QStringView>

#include <optional>

namespace Quillet {

// What a list may say of a book, in the order in which it is written.
enum class ColonneDeListe {
    id,
    titre,
    titreComplet,
    auteur,
    vendeur,
    prix,
    poids,
    isbn,
    pages,
    format,
    langue,
    disponible,
    lienPaypal,
};

struct TraitsDeColonne
{
    const char *brut = nullptr; // the field in the data files
    QStringView nom;
    QStringView autres; // what it is called elsewhere: in small letters without accents, nor anything between them
};

constexpr TraitsDeColonne traits(ColonneDeListe colonne)
{
    switch (colonne) {
    case ColonneDeListe::id:
        return {"id", u"Numéro", u"n no nr num numerodulivre identifiant number"};
    case ColonneDeListe::titre:
        return {"titre", u"Titre", u"titrecourt livre ouvrage title shorttitle book name nom"};
    case ColonneDeListe::titreComplet:
        return {"titreComplet", u"Titre complet", u"titrelong titreetsoustitre fulltitle longtitle"};
    case ColonneDeListe::auteur:
        return {"auteur", u"Auteur", u"auteurs autrice auteure auteurice author authors ecrivain"};
    case ColonneDeListe::vendeur:
        return {"vendeur", u"Vendeur", u"editeur edition editions maison seller vendor publisher"};
    case ColonneDeListe::prix:
        return {
            "prix", u"Prix (€)",
            u"prix prixttc prixeur prixeuro prixeuros prixeneuros prixdevente prixpublic prixunitaire price priceeur "
            u"unitprice"};
    case ColonneDeListe::poids:
        return {"poids", u"Poids (g)", u"poids poidsgr poidsgrammes poidsengrammes weight weightg weightgrams"};
    case ColonneDeListe::isbn:
        return {"isbn", u"ISBN", u"isbn13 isbn10 ean ean13 codebarre codebarres gtin"};
    case ColonneDeListe::pages:
        return {"pages", u"Pages",
                u"page nombredepages nbpages nbdepages nbrepages pagination numberofpages pagecount"};
    case ColonneDeListe::format:
        return {"format", u"Format", u"reliure formatreliure taille dimensions binding trimsize size"};
    case ColonneDeListe::langue:
        return {"langue", u"Langue", u"langues language lang"};
    case ColonneDeListe::disponible:
        return {"disponible", u"Disponible", u"disponibilite dispo enstock stock available availability instock"};
    case ColonneDeListe::lienPaypal:
        return {"lienPaypal", u"Lien PayPal", u"paypal lien urlpaypal adressepaypal paypallink paypalurl link url"};
    }
    return {};
}

constexpr const char *valeurBrute(ColonneDeListe colonne)
{
    return traits(colonne).brut;
}

namespace ColonnesDeListe {

// A text as it is compared: its letters and digits alone, small, without accents.
QString cle(const QString &texte);
// None for a head that says nothing of a book.
std::optional<ColonneDeListe> trouvee(const QString &tete);

} // namespace ColonnesDeListe

} // namespace Quillet
