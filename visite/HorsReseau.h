#pragma once

#include "watch/Verifications.h"

namespace Quillet {

// Pages that nobody serves: a check of theirs fails at once, without a word to the outside.
inline PagesSurveillees horsReseau()
{
    return {QUrl(QStringLiteral("http://127.0.0.1:9/poste")), QUrl(QStringLiteral("http://127.0.0.1:9/paypal"))};
}

} // namespace Quillet
