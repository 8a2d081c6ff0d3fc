#pragma once

#include "bench/Releve.h"

namespace Quillet {

class Temoin;

// From the start of a process to its painted window, beside an empty one; in milliseconds and MiB.
QList<Releve> mesurerDepart();
// From a gesture on the order screen to its painted effect, in milliseconds.
QList<Releve> mesurerEcran(Temoin &temoin);
// The same on the books' screen.
QList<Releve> mesurerLivres(Temoin &temoin);
// From a click to the first image of the sheet or screen that it opens, in milliseconds.
QList<Releve> mesurerFeuilles();
// What the program holds after long use, in KiB.
QList<Releve> mesurerMemoire(Temoin &temoin);
QList<Releve> mesurerCalcul();
// One invoice as a PDF, in milliseconds and KiB.
QList<Releve> mesurerFacture();
// The two pages of the tariff watch, and pages made to be slow, in milliseconds.
QList<Releve> mesurerPages();

} // namespace Quillet
