#include "ui/Fenetre.h"
#include "ui/InstanceUnique.h"
#include "ui/QuilletApp.h"

#include <QApplication>
#include <QMessageBox>

#include <cstdio>
#include <cstdlib>

namespace {

int ouvrir()
{
    InstanceUnique instance;
    if (!instance.prendreLaPlace())
        return 0;
    try {
        QuilletApp quillet(Ressources::duProgramme(), Stockage::deLUtilisateur(), Preferences::deLUtilisateur());
        QObject::connect(&instance, &InstanceUnique::appelee, &quillet.fenetre(), &Fenetre::ramener);
        quillet.fenetre().show();
        return QApplication::exec();
    } catch (const RessourceIllisible &erreur) {
        std::fprintf(stderr, "%s\n", erreur.what());
        if (QGuiApplication::platformName() != QLatin1String("offscreen"))
            QMessageBox::critical(nullptr, QStringLiteral("Quillet"), erreur.texte());
        return 1;
    }
}

} // namespace

int main(int argc, char **argv)
{
    QApplication programme(argc, argv);
    QuilletApp::preparer();
    const int code = ouvrir();
    // All is put away. Leaving by the way of QApplication could wait seconds for a name server that does not answer.
    std::fflush(nullptr);
    std::_Exit(code);
}
