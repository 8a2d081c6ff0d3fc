#include "ui/Fenetre.h"
#include "ui/InstanceUnique.h"
#include "ui/QuilletApp.h"

#include <QApplication>
#include <QMessageBox>

#include <cstdio>

int main(int argc, char **argv)
{
    QApplication programme(argc, argv);
    QuilletApp::preparer();
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
