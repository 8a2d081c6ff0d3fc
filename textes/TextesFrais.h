#pragma once

#include "model/Quantite.h"
#include "model/Reglages.h"

#include <QString>

namespace Quillet {

// PayPal's fees in words.
namespace TextesFrais {

// "Europe (EEE)"
QString region(RegionPaypal region);
// "3,49 % + 0,35 €"
QString formule(Taux taux, Centimes fixe);

} // namespace TextesFrais

} // namespace Quillet
