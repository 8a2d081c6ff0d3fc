#include "ui/Fenetre.h"
#include "ui/InstanceUnique.h"
#include "ui/LigneDeCommande.h"
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
        QuilletApp quillet(
            Ressources::duProgramme(), Stockage::deLUtilisateur(), Preferences::deLUtilisateur(),
            [] { return QDate::currentDate(); }, PagesSurveillees(), SourceMisesAJour::duProgramme());
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
    QApplication programme(argc, argv);
    QuilletApp::preparer();
    const int code = ouvrir();
    // All is put away. Leaving by the way of QApplication could wait seconds for a name server that does not answer.
    std::fflush(nullptr);
    std::_Exit(code);
}
