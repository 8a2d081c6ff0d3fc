#include "visite/Parcours.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QProcess>

#include <cstdio>

using namespace Quillet;

namespace {

struct Apparence
{
    QString suffixe;
    Theme::Mode mode;
    QString echelle;
    bool pourLesBoutiques = false;
};

// The largest window that software shops want a picture of.
constexpr QSize fenetreDesBoutiques(1000, 700);

// A display scale is fixed for the life of a process: each look is drawn by one of its own.
bool dessinerAPart(const Apparence &apparence, const QString &dossier)
{
    QProcess visite;
    auto environnement = QProcessEnvironment::systemEnvironment();
    environnement.insert(QStringLiteral("QT_SCALE_FACTOR"), apparence.echelle);
    visite.setProcessEnvironment(environnement);
    visite.setProcessChannelMode(QProcess::ForwardedChannels);
    QStringList arguments{QStringLiteral("--suffixe=") + apparence.suffixe, dossier};
    if (apparence.mode == Theme::Mode::sombre)
        arguments.prepend(QStringLiteral("--sombre"));
    if (apparence.pourLesBoutiques)
        arguments.prepend(QStringLiteral("--boutiques"));
    visite.start(QCoreApplication::applicationFilePath(), arguments);
    return visite.waitForFinished(-1) && visite.exitStatus() == QProcess::NormalExit && visite.exitCode() == 0;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication programme(argc, argv);
    QCommandLineParser options;
    options.setApplicationDescription(QStringLiteral("Une commande type, jouée dans les vraies fenêtres et dessinée."));
    options.addHelpOption();
    options.addOption({QStringLiteral("sombre"), QStringLiteral("En sombre.")});
    options.addOption(
        {QStringLiteral("boutiques"), QStringLiteral("De la taille que veulent les boutiques de logiciels.")});
    options.addOption({QStringLiteral("suffixe"), QStringLiteral("Seulement les images, avec ce suffixe."),
                       QStringLiteral("suffixe")});
    options.addPositionalArgument(QStringLiteral("dossier"), QStringLiteral("Où écrire les images."),
                                  QStringLiteral("[dossier]"));
    options.process(programme);

    const QStringList arguments = options.positionalArguments();
    const QDir dossier(arguments.isEmpty() ? QStringLiteral("build/visite") : arguments.first());
    if (!dossier.mkpath(QStringLiteral("."))) {
        std::fprintf(stderr, "Dossier impossible à créer : %s\n", qPrintable(dossier.path()));
        return 1;
    }
    const Theme::Mode mode = options.isSet(QStringLiteral("sombre")) ? Theme::Mode::sombre : Theme::Mode::clair;
    const bool seule = options.isSet(QStringLiteral("suffixe"));
    QuilletApp::preparer(mode);
    try {
        const auto taille =
            options.isSet(QStringLiteral("boutiques")) ? std::optional(fenetreDesBoutiques) : std::nullopt;
        if (!Parcours(dossier, options.value(QStringLiteral("suffixe")), !seule, taille).jouer())
            return 1;
    } catch (const RessourceIllisible &erreur) {
        std::fprintf(stderr, "%s\n", erreur.what());
        return 1;
    }
    if (seule)
        return 0;
    for (const Apparence &apparence :
         {Apparence{QStringLiteral("-sombre"), Theme::Mode::sombre, QStringLiteral("1")},
          Apparence{QStringLiteral("-200"), Theme::Mode::clair, QStringLiteral("2")},
          Apparence{QStringLiteral("-sombre-200"), Theme::Mode::sombre, QStringLiteral("2")},
          Apparence{QStringLiteral("-boutique"), Theme::Mode::clair, QStringLiteral("2"), true}})
        if (!dessinerAPart(apparence, dossier.path()))
            return 1;
    std::printf("Images : %s\n", qPrintable(dossier.absolutePath()));
    return 0;
}
