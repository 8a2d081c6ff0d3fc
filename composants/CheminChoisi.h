#pragma once

#include <QString>

#include <optional>

class QWidget;

// The path that a dialog to save gives.
namespace Quillet::CheminChoisi {

// With its suffix: the dialog adds it only to a name without any dot, and asked about replacing another file then.
// None when the user keeps the file that stands there. `titre`: the dialog's.
std::optional<QString> avecSuffixe(const QString &chemin, const QString &suffixe, const QString &titre,
                                   QWidget *parent);

} // namespace Quillet::CheminChoisi
