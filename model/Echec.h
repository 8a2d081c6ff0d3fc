#pragma once

#include <QString>

#include <stdexcept>

namespace Quillet {

// A failure whose text the user will read, in French.
class Echec : public std::runtime_error
{
public:
    explicit Echec(const QString &texte) : std::runtime_error(texte.toStdString()) {}
    [[nodiscard]] QString texte() const { return QString::fromUtf8(what()); }
};

} // namespace Quillet
