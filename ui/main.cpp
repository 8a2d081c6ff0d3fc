#include "composants/PressePapiers.h"
#include "composants/bureau/Bureau.h"
#include "echanges/Reprise.h"
#include "ui/Fenetre.h"
#include "ui/InstanceUnique.h"
#include "ui/LigneDeCommande.h"
#include "ui/QuilletApp.h"
#include "ui/echanges/RetourAuDemarrage.h"

#include <QApplication>
#include <QDesktopServices>
#include <QMessageBox>
#include <QStandardPaths>

#include <cstdio>
#include <cstdlib>
#include <memory>

using namespace Quillet;

namespace {

// As this program was packaged; no feed unless it runs from where the package puts it: an update of another copy would
// stand beside it.
SourceMisesAJour sourceDesMisesAJour()
{
    const bool installe = QCoreApplication::applicationDirPath() == u"/usr/bin";
    return {.flux = installe ? QUrl(QStringLiteral(QUILLET_FLUX)) : QUrl(),
            .clePublique = QByteArrayLiteral(QUILLET_CLE_PUBLIQUE),
            .installee = QCoreApplication::applicationVersion(),
            .systeme = QSysInfo::productType() + QSysInfo::productVersion(),
            .cache = QDir(QStandardPaths::writableLocation(QStandardPaths::CacheLocation)),
            .installer = [](const QString &chemin) { return QDesktopServices::openUrl(QUrl::fromLocalFile(chemin)); }};
}

// Qt's plugins take these out of the environment: to be called before it starts.
QByteArray jetonDuLanceur()
{
    const QByteArray jeton = qgetenv("XDG_ACTIVATION_TOKEN");
    return jeton.isEmpty() ? qgetenv("DESKTOP_STARTUP_ID") : jeton;
}

// There is nobody to answer a question.
bool sansEcran()
{
    return QGuiApplication::platformName() == QLatin1String("offscreen");
}

// Own data that cannot be read stop the program, unless a copy takes their place. Null: the user took none.
std::unique_ptr<QuilletApp> demarrer(const Stockage &donnees, const Preferences &preferences)
{
    for (;;)
        try {
            return std::make_unique<QuilletApp>(
                Ressources::enVigueur(donnees.donneesPersonnelles()), donnees, preferences,
                [] { return QDate::currentDate(); }, PagesSurveillees(), sourceDesMisesAJour());
        } catch (const RessourceIllisible &erreur) {
            const RetourAuDemarrage retour(donnees, preferences);
            if (!retour.possible() || sansEcran())
                throw;
            std::fprintf(stderr, "%s\n", erreur.what());
            if (!retour.accepte(erreur.texte()))
                return nullptr;
        }
}

int ouvrir(Bureau &bureau, const QByteArray &jeton)
{
    InstanceUnique instance(InstanceUnique::communDeLUtilisateur());
    try {
        if (!instance.prendreLaPlace(jeton))
            return 0;
        const Stockage donnees = Stockage::deLUtilisateur();
        const Preferences preferences = Preferences::deLUtilisateur();
        Reprise::achever(donnees.dossier(), preferences); // before anything of it is read
        const auto quillet = demarrer(donnees, preferences);
        if (!quillet)
            return 1;
        instance.suivreLesDonnees(); // of a copy that took their place
        QObject::connect(&instance, &InstanceUnique::appelee, &quillet->fenetre(), &Fenetre::ramener);
        QObject::connect(&quillet->catalogue(), &Catalogue::recharge, &instance, &InstanceUnique::suivreLesDonnees);
        bureau.relever(); // most often it has answered by now: the first image is right at once
        quillet->fenetre().show();
        return QApplication::exec();
    } catch (const Echec &erreur) {
        std::fprintf(stderr, "%s\n", erreur.what());
        if (!sansEcran())
            QMessageBox::critical(nullptr, QStringLiteral("Quillet"), erreur.texte());
        return 1;
    }
}

QStringList enTextes(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
}

} // namespace

int main(int argc, char **argv)
{
    if (const auto reponse = LigneDeCommande::repondre(enTextes(argc, argv))) {
        std::fputs(reponse->texte.toUtf8().constData(), reponse->code == 2 ? stderr : stdout);
        return reponse->code;
    }
    const QByteArray jeton = jetonDuLanceur();
    QApplication programme(argc, argv);
    Bureau bureau;
    QuilletApp::preparer();
    QuilletApp::suivre(bureau);
    const int code = ouvrir(bureau, jeton);
    PressePapiers::leguer();
    // All is put away. Leaving by the way of QApplication could wait seconds for a name server that does not answer.
    std::fflush(nullptr);
    std::_Exit(code);
}
