#include "bench/Mesures.h"
#include "bench/Temoin.h"

#include <QTemporaryDir>

#include <cstdio>

namespace {

// The user's files and the lock of a program that runs are none of our business; a display is not required.
void isoler(const QTemporaryDir &dossier)
{
    for (const char *variable : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"})
        qputenv(variable, dossier.path().toUtf8());
    qputenv("LC_ALL", "C.UTF-8");
    if (!qEnvironmentVariableIsSet("DISPLAY") && !qEnvironmentVariableIsSet("WAYLAND_DISPLAY")
        && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

QList<Releve> mesurerDepartSeul(int argc, char **argv)
{
    // Starting processes from a small one costs them nothing.
    const QCoreApplication programme(argc, argv);
    return mesurerDepart();
}

} // namespace

int main(int argc, char **argv)
{
    const QTemporaryDir dossier;
    isoler(dossier);
    const QByteArrayList parties(argv + 1, argv + argc);
    const auto demandee = [&](const char *partie) { return parties.isEmpty() || parties.contains(partie); };
    QList<Releve> releves;
    if (demandee("depart"))
        releves += mesurerDepartSeul(argc, argv);
    Temoin temoin(argc, argv);
    if (demandee("ecran"))
        releves += mesurerEcran(temoin);
    if (demandee("calcul"))
        releves += mesurerCalcul();
    if (demandee("facture"))
        releves += mesurerFacture();
    if (demandee("pages"))
        releves += mesurerPages();
    std::printf("Plateforme %s\n%s", qPrintable(Temoin::platformName()), qPrintable(tableau(releves)));
}
