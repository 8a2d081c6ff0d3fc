#pragma once

#include "model/Quantite.h"
#include "model/Reglages.h"

#include <QString>

// PayPal's fees in words.
namespace Quillet::TextesFrais {

// "Europe (EEE)"
QString region(RegionPaypal region);
// "3,49 % + 0,35 €"
QString formule(Taux taux, Centimes fixe);

} // namespace Quillet::TextesFrais
