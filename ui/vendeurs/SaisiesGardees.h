#pragma once

#include <QStringList>

#include <functional>

class QWidget;

namespace Quillet {

class AlerteRelecture;

// Keeps what a sheet's fields could not save over data that are read again.
namespace SaisiesGardees {

// Each is saved where it was typed, unless its value changed there too: then that is said, with
// what else the sheet has lost by then.
void suivre(AlerteRelecture *alerte, QWidget *feuille, const std::function<QStringList()> &aussiPerdues);

} // namespace SaisiesGardees

} // namespace Quillet
