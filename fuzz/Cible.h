#pragma once

#include <QByteArray>

#include <cstdint>

namespace Quillet {

// Libfuzzer's bytes, without a copy.
inline QByteArray contenu(const std::uint8_t *octets, std::size_t taille)
{
    return QByteArray::fromRawData(reinterpret_cast<const char *>(octets), static_cast<qsizetype>(taille));
}

// What must hold for every input; libFuzzer keeps the one for which it does not.
inline void exiger(bool tenu, const char *quoi)
{
    if (!tenu)
        qFatal("Exigence non tenue : %s", quoi);
}

} // namespace Quillet
