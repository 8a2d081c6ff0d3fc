#pragma once

#include <QChar>

namespace Quillet {

// One that is no part of a text: a line break, a bell.
inline bool estUnSigneDeCommande(QChar signe)
{
    return signe.category() == QChar::Other_Control;
}

} // namespace Quillet
