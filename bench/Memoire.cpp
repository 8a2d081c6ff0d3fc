#include "bench/Memoire.h"

#include <QFile>

#include <malloc.h>

namespace Quillet {

namespace {

double champ(const char *nom)
{
    QFile fichier(QStringLiteral("/proc/self/status"));
    if (!fichier.open(QIODevice::ReadOnly))
        qFatal("/proc/self/status : %s", qPrintable(fichier.errorString()));
    const QByteArray etat = fichier.readAll();
    const qsizetype debut = etat.indexOf(nom) + qsizetype(qstrlen(nom));
    return etat.mid(debut, etat.indexOf("kB", debut) - debut).trimmed().toDouble();
}

} // namespace

double Memoire::tas()
{
    constexpr double octetsParKio = 1024;
    const auto etat = mallinfo2();
    return static_cast<double>(etat.uordblks + etat.hblkhd) / octetsParKio;
}

double Memoire::residente()
{
    return champ("VmRSS:");
}

double Memoire::auPlusHaut()
{
    return champ("VmHWM:");
}

} // namespace Quillet
