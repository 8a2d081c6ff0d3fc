#pragma once

#include "model/Json.h"
#include "model/Livre.h"
#include "model/Reglages.h"

#include <QHash>

#include <algorithm>
#include <array>

// What holds for every value of its kind, wherever it stands: texts say something, links open (the program follows
// https only).
namespace Quillet::ReglesCommunes {

// The texts that a record may leave empty: a book may have neither picture nor ISBN.
template <typename Enregistrement>
inline constexpr std::array<const char *, 0> textesFacultatifs{};
template <>
inline constexpr std::array textesFacultatifs<Livre>{"couverture", "isbn"};
template <>
inline constexpr std::array textesFacultatifs<IdentiteVendeur>{"mentionTva"};

template <typename T>
void controler(const T &, const Json::Lieu &)
{
}

inline void controler(const QString &texte, const Json::Lieu &lieu)
{
    if (texte.trimmed().isEmpty())
        lieu.noter(QStringLiteral("à remplir"));
}

inline void controler(const Jour &jour, const Json::Lieu &lieu)
{
    controler(jour.texte(), lieu);
    if (!jour.date().isValid())
        lieu.noter(QStringLiteral("jour attendu, de la forme 2026-01-31"));
}

template <typename Sorte>
void controler(const Cle<Sorte> &cle, const Json::Lieu &lieu)
{
    controler(cle.texte(), lieu);
}

inline void controler(const QUrl &adresse, const Json::Lieu &lieu)
{
    if (adresse.scheme() != QLatin1String("https"))
        lieu.noter(QStringLiteral("adresse https attendue"));
}

template <Json::EstEnregistrement Enregistrement>
void controler(const Enregistrement &valeur, const Json::Lieu &lieu);
template <typename T>
void controler(const QList<T> &valeurs, const Json::Lieu &lieu);
template <typename Sorte, typename T>
void controler(const QMap<Cle<Sorte>, T> &valeurs, const Json::Lieu &lieu);

template <typename T>
void controler(const std::optional<T> &valeur, const Json::Lieu &lieu)
{
    if (valeur)
        controler(*valeur, lieu);
}

template <Json::EstEnregistrement Enregistrement>
void controler(const Enregistrement &valeur, const Json::Lieu &lieu)
{
    const auto controlerChamp = [&](const auto &champ) {
        const auto designe = [&](const char *cle) { return QLatin1String(cle) == QLatin1String(champ.cle); };
        if (std::ranges::none_of(textesFacultatifs<Enregistrement>, designe))
            controler(valeur.*champ.membre, Json::Lieu(lieu, QString::fromLatin1(champ.cle)));
    };
    std::apply([&](const auto &...champ) { (controlerChamp(champ), ...); }, Json::champs<Enregistrement>);
}

template <typename T>
void controler(const QList<T> &valeurs, const Json::Lieu &lieu)
{
    for (qsizetype i = 0; i < valeurs.size(); ++i)
        controler(valeurs[i], Json::Lieu(lieu, i));
}

template <typename Sorte, typename T>
void controler(const QMap<Cle<Sorte>, T> &valeurs, const Json::Lieu &lieu)
{
    for (auto entree = valeurs.begin(); entree != valeurs.end(); ++entree)
        controler(entree.value(), Json::Lieu(lieu, entree.key().texte()));
}

// The program takes the first of two: the second would never be found.
template <typename T, typename Valeur>
void sansDoublon(const QList<T> &liste, const char *cle, Valeur T::*membre, const Json::Lieu &lieu)
{
    QHash<Valeur, qsizetype> premiers;
    for (qsizetype i = 0; i < liste.size(); ++i) {
        const auto premier = premiers.constFind(liste[i].*membre);
        if (premier == premiers.constEnd())
            premiers.insert(liste[i].*membre, i);
        else
            Json::Lieu(lieu, i).noter(cle, QStringLiteral("déjà pris par %1").arg(Json::Lieu(lieu, *premier).chemin()));
    }
}

// Every code of a list; none as soon as one is empty, for it may be the one that others name.
template <typename T>
auto codes(const QList<T> &liste)
{
    QList<decltype(T::code)> codes;
    for (const T &element : liste)
        codes.append(element.code);
    return codes.contains(decltype(T::code)()) ? decltype(codes)() : codes;
}

} // namespace Quillet::ReglesCommunes
