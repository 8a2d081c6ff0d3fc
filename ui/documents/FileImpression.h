#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <utility>

class QPrinter;

// The system's print queues (CUPS), whose own answer is believed: Qt's printer says success even when the queue
// refused the job or no server runs.
namespace Quillet::FileImpression {

// What the job asks for: the copies and colours chosen, on A4, scaled to fit, never turned.
QList<std::pair<QByteArray, QByteArray>> options(const QPrinter &choix);

// Hands the PDF document of one page over to the queue chosen. Waits for the queue's answer, seconds at most when it
// is silent. Throws Echec, which says in French why the queue did not take it.
void envoyer(const QByteArray &pdf, const QString &titre, const QPrinter &choix);

} // namespace Quillet::FileImpression
