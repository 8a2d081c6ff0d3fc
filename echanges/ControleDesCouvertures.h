#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <chrono>

// Whether the program may show pictures that somebody else has made, without reading any of them itself: it is asked by
// `option` once more, in one process for all of them, which does with each what showing it would.
namespace Quillet::ControleDesCouvertures {

// Of these files, the ones that are not to be shown. `patience`: for one. Throws Echec on one that takes too much.
QStringList refusees(const QStringList &chemins, const QString &programme = QCoreApplication::applicationFilePath(),
                     std::chrono::milliseconds patience = std::chrono::seconds{20});

// In the other process: reads names of files on its standard input, each ended by a zero, and says of each in turn.
inline QString option()
{
    return QStringLiteral("controler-couvertures");
}
void repondre();

} // namespace Quillet::ControleDesCouvertures
