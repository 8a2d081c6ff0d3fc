#pragma once

#include "model/Ressources.h"

#include <QString>

// What is said while books and sellers are the invented ones that come with the program.
namespace Quillet::TextesExemple {

QString surLaCommande();
// Of what is about to leave under an invented name; empty when the data are somebody's.
QString surLaFacture(Origine origine);
QString surLaReponse(Origine origine);

} // namespace Quillet::TextesExemple
