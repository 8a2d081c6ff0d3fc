#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

// What the machine lacks to show the window as it was drawn. Quillet works without: nothing else tells.
namespace Quillet::ControlePoste {

// What a system brings beside the libraries.
struct Moyens
{
    QList<QByteArray> images; // the formats that are read, as files are named after them
    QStringList polices;      // families
    bool francais = false;    // Qt's own words
    bool curl = false;        // which downloads
};

// Those of this machine. Needs a QGuiApplication, of whatever platform.
Moyens moyens();

// A sentence for each lack. `couvertures`: files.
QStringList manques(const Moyens &moyens, const QStringList &couvertures);

// A sentence for each of these files that is a picture of a known format, and cannot be drawn whole.
QStringList imagesAbimees(const Moyens &moyens, const QStringList &couvertures);

} // namespace Quillet::ControlePoste
