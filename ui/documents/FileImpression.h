#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>
#include <utility>

// The system's print queues (CUPS), whose own answer is believed: Qt's printer says success even when the queue
// refused the job or no server runs.
namespace Quillet::FileImpression {

// Comes back once the print server has told its queues, and of the one shown first all that Qt's dialog will ask; at
// once when there is no server. A silent one is left alone after long seconds: not on the window's thread.
void consulter();

// What was chosen for a job.
struct Travail
{
    QString file; // its name, "queue" or "queue/instance"
    int exemplaires = 1;
    std::optional<bool> enCouleur; // as the queue is set up, when nobody chose
};

// What the job asks for: the copies and colours chosen, on A4, scaled to fit, never turned.
QList<std::pair<QByteArray, QByteArray>> options(const Travail &travail);

// Hands the PDF document of one page over to the queue chosen. Waits for the queue's answer, seconds at most when it
// is silent: not on the window's thread. Throws Echec, which says in French why the queue did not take it.
void envoyer(const QByteArray &pdf, const QString &titre, const Travail &travail);

} // namespace Quillet::FileImpression
