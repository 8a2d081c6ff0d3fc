#pragma once

#include "model/Reglages.h"

#include <QDate>
#include <QString>
#include <QUrl>

// PayPal's page of merchant fees for France.
namespace Quillet::RelevePaypal {

QUrl adresse();
// Throws ErreurReleve when one of the five figures is missing or is no number.
FraisPaypal analyser(const QString &page, QDate releve);

} // namespace Quillet::RelevePaypal
