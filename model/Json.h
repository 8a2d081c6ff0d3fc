#pragma once

#include "model/Cle.h"
#include "model/Enumeration.h"
#include "model/Jour.h"
#include "model/LieuJson.h"
#include "model/Quantite.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QMap>
#include <QString>
#include <QUrl>

#include <concepts>
#include <optional>
#include <tuple>

// Plain records to JSON and back. A record lists its fields once, in `champs<Record>`. Everything else follows.
namespace Quillet::Json {

template <typename Enregistrement, typename Type>
struct Champ
{
    const char *cle;
    Type Enregistrement::*membre;
};
template <typename Enregistrement, typename Type>
Champ(const char *, Type Enregistrement::*) -> Champ<Enregistrement, Type>;

template <typename Enregistrement>
inline constexpr auto champs = nullptr;

template <typename T>
concept EstEnregistrement = !std::same_as<decltype(champs<T>), const std::nullptr_t>;

// One `lire` and one `ecrire` a kind of value. A `lire` refuses anything that is not exactly its kind.
void lire(const QJsonValue &json, const Lieu &lieu, qint64 &valeur);
void lire(const QJsonValue &json, const Lieu &lieu, bool &valeur);
void lire(const QJsonValue &json, const Lieu &lieu, QString &valeur);
void lire(const QJsonValue &json, const Lieu &lieu, QUrl &valeur);
void lire(const QJsonValue &json, const Lieu &lieu, Jour &valeur);

template <typename Unite> // at most so many times what a single one may be
void lire(const QJsonValue &json, const Lieu &lieu, Quantite<Unite> &valeur, qint64 termes = 1);
template <Enumeration Enum>
void lire(const QJsonValue &json, const Lieu &lieu, Enum &valeur);
template <EstEnregistrement Enregistrement>
void lire(const QJsonValue &json, const Lieu &lieu, Enregistrement &valeur);
template <typename T>
void lire(const QJsonValue &json, const Lieu &lieu, std::optional<T> &valeur);
template <typename T>
void lire(const QJsonValue &json, const Lieu &lieu, QList<T> &valeur);
template <typename Sorte>
void lire(const QJsonValue &json, const Lieu &lieu, Cle<Sorte> &valeur);
template <typename Sorte, typename T>
void lire(const QJsonValue &json, const Lieu &lieu, QMap<Cle<Sorte>, T> &valeur);

inline QJsonValue ecrire(qint64 valeur)
{
    return valeur;
}
inline QJsonValue ecrire(bool valeur)
{
    return valeur;
}
inline QJsonValue ecrire(const QString &valeur)
{
    return valeur;
}
inline QJsonValue ecrire(const QUrl &valeur)
{
    return QString::fromLatin1(valeur.toEncoded());
}
inline QJsonValue ecrire(const Jour &valeur)
{
    return valeur.texte();
}

template <typename Unite>
QJsonValue ecrire(Quantite<Unite> valeur);
template <Enumeration Enum>
QJsonValue ecrire(Enum valeur);
template <EstEnregistrement Enregistrement>
QJsonValue ecrire(const Enregistrement &valeur);
template <typename T>
QJsonValue ecrire(const std::optional<T> &valeur);
template <typename T>
QJsonValue ecrire(const QList<T> &valeur);
template <typename Sorte>
QJsonValue ecrire(const Cle<Sorte> &valeur);
template <typename Sorte, typename T>
QJsonValue ecrire(const QMap<Cle<Sorte>, T> &valeur);

// Throws Erreur when the bytes are not JSON.
QJsonValue analyser(const QByteArray &octets, const Lieu &fichier);
// Indented, keys sorted, "/" left as it is.
QByteArray rediger(const QJsonValue &json);

// Throws Erreur; `nom` heads the place that its text gives.
template <typename T>
T decoder(const QByteArray &octets, const QString &nom)
{
    const Lieu racine(nom);
    T valeur{};
    lire(analyser(octets, racine), racine, valeur);
    return valeur;
}

template <typename T>
QByteArray encoder(const T &valeur)
{
    return rediger(ecrire(valeur));
}

template <typename Unite>
void lire(const QJsonValue &json, const Lieu &lieu, Quantite<Unite> &valeur, qint64 termes)
{
    qint64 nombre = 0;
    lire(json, lieu, nombre);
    const auto bornee = Quantite<Unite>::bornee(nombre, termes);
    if (!bornee)
        lieu.refuser(nombre < 0 ? QStringLiteral("nombre négatif") : QStringLiteral("valeur hors limites"));
    valeur = *bornee;
}

template <Enumeration Enum>
void lire(const QJsonValue &json, const Lieu &lieu, Enum &valeur)
{
    QString texte;
    lire(json, lieu, texte);
    const auto cas = depuisBrut<Enum>(texte);
    if (!cas)
        lieu.refuser(QStringLiteral("valeur inconnue « %1 »").arg(texte));
    valeur = *cas;
}

// Reading passes over such a key: a misspelled optional field would be lost without a word.
template <EstEnregistrement Enregistrement>
void noterClesInconnues(const QJsonObject &objet, const Lieu &lieu)
{
    for (const QString &cle : objet.keys()) {
        const auto nommee = [&](const auto &...champ) { return ((cle == QLatin1String(champ.cle)) || ...); };
        if (!std::apply(nommee, champs<Enregistrement>))
            Lieu(lieu, cle).noter(QStringLiteral("clé inconnue"));
    }
}

template <EstEnregistrement Enregistrement>
void lire(const QJsonValue &json, const Lieu &lieu, Enregistrement &valeur)
{
    lieu.exiger(json.isObject(), json, QStringLiteral("objet attendu"));
    const QJsonObject objet = json.toObject();
    const auto lireChamp = [&](const auto &champ) {
        const QString cle = QString::fromLatin1(champ.cle);
        lieu.tenter([&] { lire(objet.value(cle), Lieu(lieu, cle), valeur.*champ.membre); });
    };
    std::apply([&](const auto &...champ) { (lireChamp(champ), ...); }, champs<Enregistrement>);
    if (lieu.collecte())
        noterClesInconnues<Enregistrement>(objet, lieu);
}

template <typename T>
void lire(const QJsonValue &json, const Lieu &lieu, std::optional<T> &valeur)
{
    if (json.isUndefined() || json.isNull())
        valeur.reset();
    else
        lire(json, lieu, valeur.emplace());
}

template <typename T>
void lire(const QJsonValue &json, const Lieu &lieu, QList<T> &valeur)
{
    lieu.exiger(json.isArray(), json, QStringLiteral("liste attendue"));
    const QJsonArray liste = json.toArray();
    valeur.resize(liste.size());
    for (qsizetype i = 0; i < liste.size(); ++i)
        lieu.tenter([&] { lire(liste.at(i), Lieu(lieu, i), valeur[i]); });
}

template <typename Sorte>
void lire(const QJsonValue &json, const Lieu &lieu, Cle<Sorte> &valeur)
{
    QString texte;
    lire(json, lieu, texte);
    valeur = Cle<Sorte>(texte);
}

template <typename Sorte, typename T, typename Lecture>
void lireTable(const QJsonValue &json, const Lieu &lieu, QMap<Cle<Sorte>, T> &valeur, Lecture lireEntree)
{
    lieu.exiger(json.isObject(), json, QStringLiteral("objet attendu"));
    const QJsonObject objet = json.toObject();
    for (auto entree = objet.begin(); entree != objet.end(); ++entree)
        lieu.tenter([&] { lireEntree(entree.value(), Lieu(lieu, entree.key()), valeur[Cle<Sorte>(entree.key())]); });
}

template <typename Sorte, typename T>
void lire(const QJsonValue &json, const Lieu &lieu, QMap<Cle<Sorte>, T> &valeur)
{
    lireTable(json, lieu, valeur,
              [](const QJsonValue &entree, const Lieu &place, T &lue) { lire(entree, place, lue); });
}

template <typename Unite>
QJsonValue ecrire(Quantite<Unite> valeur)
{
    return valeur.valeur();
}

template <Enumeration Enum>
QJsonValue ecrire(Enum valeur)
{
    return brut(valeur);
}

template <EstEnregistrement Enregistrement>
QJsonValue ecrire(const Enregistrement &valeur)
{
    QJsonObject objet;
    const auto ecrireChamp = [&](const auto &champ) {
        const QJsonValue json = ecrire(valeur.*champ.membre);
        if (!json.isUndefined())
            objet.insert(QString::fromLatin1(champ.cle), json);
    };
    std::apply([&](const auto &...champ) { (ecrireChamp(champ), ...); }, champs<Enregistrement>);
    return objet;
}

template <typename T>
QJsonValue ecrire(const std::optional<T> &valeur)
{
    return valeur ? ecrire(*valeur) : QJsonValue(QJsonValue::Undefined);
}

template <typename T>
QJsonValue ecrire(const QList<T> &valeur)
{
    QJsonArray liste;
    for (const T &element : valeur)
        liste.append(ecrire(element));
    return liste;
}

template <typename Sorte>
QJsonValue ecrire(const Cle<Sorte> &valeur)
{
    return valeur.texte();
}

template <typename Sorte, typename T>
QJsonValue ecrire(const QMap<Cle<Sorte>, T> &valeur)
{
    QJsonObject objet;
    for (auto entree = valeur.begin(); entree != valeur.end(); ++entree)
        objet.insert(entree.key().texte(), ecrire(entree.value()));
    return objet;
}

} // namespace Quillet::Json
