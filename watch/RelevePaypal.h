#pragma once

#include "model/Reglages.h"

#include <QDate>
#include <QString>
#include <QUrl>

namespace Quillet {

// PayPal's page of merchant fees for France.
namespace RelevePaypal {

QUrl adresse();
// Throws ErreurReleve when one of the five figures is missing or is no number.
FraisPaypal analyser(const QString &page, QDate releve);

} // namespace RelevePaypal

} // namespace Quillet
