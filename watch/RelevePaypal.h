#pragma once

#include "model/Reglages.h"

#include <QDate>
#include <QString>
#include <QUrl>

// PayPal's page of merchant fees for France.
namespace Quillet::RelevePaypal {

QUrl adresse();
// Throws ErreurReleve when one of the five figures is missing, or when one of the four that must be numbers is none or
// is beyond what a file may hold. The European surcharge may be beyond.
FraisPaypal analyser(const QString &page, QDate releve);

} // namespace Quillet::RelevePaypal
