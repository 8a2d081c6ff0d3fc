#pragma once

#include "model/Echec.h"

#include <QByteArray>

class QPrinter;

// The system's print queues (CUPS), whose own answer is believed: Qt's printer says success even when the queue
// refused the job or no server runs.
namespace FileImpression {

// The queue did not take the job; the text says why, in French.
class Refus : public Echec
{
public:
    using Echec::Echec;
};

// Hands the PDF document over to the queue chosen on `choix`, with its copies and sides, on A4 and scaled to fit.
// Throws Refus.
void envoyer(const QByteArray &pdf, const QString &titre, const QPrinter &choix);

} // namespace FileImpression
