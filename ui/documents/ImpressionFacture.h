#pragma once

#include "documents/Facture.h"

#include <QByteArray>

#include <chrono>
#include <functional>
#include <optional>

class QWidget;

// How an invoice leaves the program: on paper or as a file.
namespace Quillet::ImpressionFacture {

// The page as a PDF document of one page. Throws Echec.
QByteArray pdf(const Facture &facture);

// Whether a printer can be asked for: a print server that stays silent would hold the dialog, and the window, for
// minutes. No server at all is an answer.
bool imprimantesJoignables(QWidget *parent, std::chrono::milliseconds patience);
// Says that they are not; returns whether the user wants a file instead.
bool proposerLePdf(QWidget *parent);

using Permission = std::function<bool()>;

// Both ask in the platform's dialog, over `parent`, and once more by `permise` when it is left, however long it stood.
// They throw Echec when the invoice could not leave.

// Returns the path of the file to which the job was printed, empty when it was handed over to a printer; none when the
// user gave up, or it was not allowed any more.
std::optional<QString> imprimer(const Facture &facture, int exemplaires, const Permission &permise, QWidget *parent);
// Returns the path of the file written; none as above. The dialog opens on `dossier`, or on the user's documents when
// that folder is not there.
std::optional<QString> enregistrer(const Facture &facture, const QString &dossier, const Permission &permise,
                                   QWidget *parent);

} // namespace Quillet::ImpressionFacture
