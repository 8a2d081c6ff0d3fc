#pragma once

#include <QString>

#include <chrono>
#include <functional>

class QWidget;

// Waits for what may be silent, in a thread of its own, over a window that goes on drawing itself. Nothing else can be
// done in that window meanwhile; if it lasts, `texte` says what is waited for.
namespace Quillet::Attente {

// Until the work is done, even when the program is asked to leave; throws what the work throws.
void jusquAuBout(QWidget *parent, const QString &texte, const std::function<void()> &travail);

// Whether the work was done by then. If not, it is left to itself: it must own all that it touches, and throw nothing.
bool auPlus(std::chrono::milliseconds patience, QWidget *parent, const QString &texte,
            const std::function<void()> &travail);

} // namespace Quillet::Attente
