// Bytes changed at random are hardly ever JSON still: this changes one value of the document, as often as not.
#include "model/Quantite.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>
#include <cstdint>
#include <random>

using namespace Quillet;

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t *octets, std::size_t taille, std::size_t place);

namespace {

using Hasard = std::minstd_rand;

qsizetype tirer(Hasard &hasard, qsizetype nombre)
{
    return std::uniform_int_distribution<qsizetype>(0, nombre - 1)(hasard);
}

QJsonValue autreNombre(Hasard &hasard, qint64 nombre)
{
    constexpr qint64 extreme = std::numeric_limits<qint64>::max();
    const std::array<qint64, 12> nombres{0,
                                         1,
                                         ~nombre,
                                         nombre / 2 - 1,
                                         UniteCentime::maximum,
                                         UniteGramme::maximum,
                                         2 * UniteCentime::maximum,
                                         UniteCentiemeDePourcent::maximum,
                                         -UniteCentime::maximum,
                                         -UniteGramme::maximum,
                                         extreme,
                                         -extreme - 1};
    return nombres[static_cast<std::size_t>(tirer(hasard, std::ssize(nombres)))];
}

QJsonValue autreTexte(const QString &texte)
{
    QByteArray octets = texte.toUtf8();
    const qsizetype taille = octets.size();
    octets.resize(taille + 16);
    octets.resize(static_cast<qsizetype>(LLVMFuzzerMutate(reinterpret_cast<std::uint8_t *>(octets.data()),
                                                          static_cast<std::size_t>(taille),
                                                          static_cast<std::size_t>(octets.size()))));
    return QString::fromUtf8(octets);
}

QJsonValue autre(Hasard &hasard, const QJsonValue &json);

QJsonValue autreListe(Hasard &hasard, QJsonArray liste)
{
    if (liste.isEmpty())
        return QJsonArray{0};
    const qsizetype rang = tirer(hasard, liste.size());
    switch (tirer(hasard, 8)) {
    case 0:
        liste.removeAt(rang);
        break;
    case 1:
        liste.insert(rang, liste.at(tirer(hasard, liste.size())));
        break;
    default:
        liste.replace(rang, autre(hasard, liste.at(rang)));
    }
    return liste;
}

QJsonValue autreObjet(Hasard &hasard, QJsonObject objet)
{
    if (objet.isEmpty())
        return QJsonObject{{QStringLiteral("france"), 0}};
    const QStringList cles = objet.keys();
    const QString &cle = cles[tirer(hasard, cles.size())];
    switch (tirer(hasard, 16)) {
    case 0:
        objet.remove(cle);
        break;
    case 1:
        objet.insert(autreTexte(cle).toString(), objet.value(cle));
        break;
    case 2:
        objet.insert(cle, objet.value(cles[tirer(hasard, cles.size())]));
        break;
    default:
        objet.insert(cle, autre(hasard, objet.value(cle)));
    }
    return objet;
}

QJsonValue autre(Hasard &hasard, const QJsonValue &json)
{
    switch (json.type()) {
    case QJsonValue::Double:
        return autreNombre(hasard, json.toInteger());
    case QJsonValue::String:
        return autreTexte(json.toString());
    case QJsonValue::Array:
        return autreListe(hasard, json.toArray());
    case QJsonValue::Object:
        return autreObjet(hasard, json.toObject());
    default:
        return !json.toBool();
    }
}

} // namespace

// The first byte says which file it is.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *octets, std::size_t taille, std::size_t place,
                                               unsigned graine)
{
    Hasard hasard(graine);
    const auto json = taille == 0 || tirer(hasard, 2) == 0
                          ? QJsonDocument()
                          : QJsonDocument::fromJson(QByteArray(reinterpret_cast<const char *>(octets) + 1,
                                                               static_cast<qsizetype>(taille) - 1));
    if (json.isNull())
        return LLVMFuzzerMutate(octets, taille, place);
    const QJsonValue change = json.isArray() ? autreListe(hasard, json.array()) : autreObjet(hasard, json.object());
    const QByteArray texte = (change.isArray() ? QJsonDocument(change.toArray()) : QJsonDocument(change.toObject()))
                                 .toJson(QJsonDocument::Compact);
    if (static_cast<std::size_t>(texte.size()) >= place)
        return LLVMFuzzerMutate(octets, taille, place);
    std::ranges::copy(texte, octets + 1);
    return static_cast<std::size_t>(texte.size()) + 1;
}
