#include "bench/Gestes.h"

#include "bench/Scene.h"

#include <algorithm>
#include <cstdio>

using namespace Quillet;

// bench-gestes <gesture> <times> [books [siens]]: plays one gesture over and over in a window of its own, prints the
// milliseconds of each. The first one finds nothing in memory of what it needs.
int main(int argc, char **argv)
{
    Temoin temoin(argc, argv);
    QuilletApp::preparer();
    const QStringList arguments = Temoin::arguments();
    const auto gestes = Gestes::frequents() + Gestes::feuilles() + Gestes::ecrans() + QList{Gestes::report()};
    const auto geste = std::ranges::find(gestes, arguments.value(1), &Gestes::Geste::nom);
    if (geste == gestes.end())
        qFatal("Geste inconnu : %s", qPrintable(arguments.value(1)));

    const int livres = arguments.value(3).toInt();
    const Origine origine = arguments.value(4).isEmpty() ? Origine::exemple : Origine::utilisateur;
    const Echantillon echantillon =
        livres > 0 ? Echantillon(livres, Echantillon::Images::avec, origine) : Echantillon();
    Scene scene(temoin, echantillon);
    geste->preparer(scene);
    for (int rang = 0; rang < arguments.value(2).toInt(); ++rang)
        std::printf("%.3f\n", geste->jouer(scene, rang));
}
