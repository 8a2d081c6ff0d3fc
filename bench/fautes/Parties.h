#pragma once

#include "model/Ressources.h"

#include <QString>

namespace Quillet {

// Each part tells its totals and gives 0 when it found no fault, else more; `travail` is an empty folder of its own.
int arretsAuHasard(const Ressources &ressources, const QString &travail);
int arretsAChaqueAppel(const Ressources &ressources, const QString &travail);
int coupures(const Ressources &ressources, const QString &travail);
int appelsEnEchec(const Ressources &ressources, const QString &travail);
int disquesPleins(const Ressources &ressources, const QString &travail);
int dossiersPerdus(const Ressources &ressources, const QString &travail);
int reprises(const Ressources &ressources, const QString &travail);

} // namespace Quillet
