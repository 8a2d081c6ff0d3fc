#include "bench/Mesures.h"
#include "bench/Temoin.h"

#include <QFile>
#include <QSysInfo>
#include <QTemporaryDir>
#include <QThread>

#include <cstdio>

using namespace Quillet;

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

// The machine and the platform, without which no figure means anything.
QString machine()
{
    QFile fichier(QStringLiteral("/proc/cpuinfo"));
    const QByteArray processeurs = fichier.open(QIODevice::ReadOnly) ? fichier.readAll() : QByteArray();
    const qsizetype debut = processeurs.indexOf(':', processeurs.indexOf("model name")) + 1;
    return QStringLiteral("%1, %2 cœurs, %3, Qt %4, plateforme %5")
        .arg(QString::fromUtf8(processeurs.mid(debut, processeurs.indexOf('\n', debut) - debut)).trimmed())
        .arg(QThread::idealThreadCount())
        .arg(QSysInfo::prettyProductName(), QString::fromLatin1(qVersion()), Temoin::platformName());
}

} // namespace

int main(int argc, char **argv)
{
    const QTemporaryDir dossier;
    isoler(dossier);
    QByteArrayList parties(argv + 1, argv + argc);
    const Forme forme = parties.removeAll("--markdown") > 0 ? Forme::markdown : Forme::texte;
    const auto demandee = [&](const char *partie) { return parties.isEmpty() || parties.contains(partie); };
    QList<Releve> releves;
    {
        // Starting processes from a small one costs them nothing.
        const QCoreApplication programme(argc, argv);
        if (demandee("depart"))
            releves += mesurerDepart();
        if (demandee("feuilles"))
            releves += mesurerFeuilles();
    }
    Temoin temoin(argc, argv);
    if (demandee("memoire")) // before the large catalogues, whose memory is not given back
        releves += mesurerMemoire(temoin);
    if (demandee("ecran"))
        releves += mesurerEcran(temoin);
    if (demandee("livres"))
        releves += mesurerLivres(temoin);
    if (demandee("calcul"))
        releves += mesurerCalcul();
    if (demandee("facture"))
        releves += mesurerFacture();
    if (demandee("pages"))
        releves += mesurerPages();
    std::printf("%s\n\n%s", qPrintable(machine()), qPrintable(tableau(releves, forme)));
}
