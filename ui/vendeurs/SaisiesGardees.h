#pragma once

class QWidget;

namespace Quillet {

class AlerteRelecture;

// Keeps what a sheet's fields could not save over data that are read again.
namespace SaisiesGardees {

// Each is saved where it was typed, unless its value changed there too: then that is said.
void suivre(AlerteRelecture *alerte, QWidget *feuille);

} // namespace SaisiesGardees

} // namespace Quillet
