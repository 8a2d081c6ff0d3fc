#pragma once

#include "watch/MisesAJour.h"

#include <QString>

#include <optional>

// What the sheet of updates says: texts only, laid out by the widget.
namespace Quillet::TextesMiseAJour {

struct Page
{
    QString titre;
    QString detail; // may be empty, as may the next three
    QString alerte;
    QString notes;
    QString action;             // the button that goes on
    QString retrait;            // the button that goes back or closes
    std::optional<int> progres; // of a thousand
    bool attente = false;       // something runs whose end is not known
};
// `installee`: the version that runs.
Page page(const MisesAJour::Etat &etat, const QString &installee);

} // namespace Quillet::TextesMiseAJour
