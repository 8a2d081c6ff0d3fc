#include "ui/Fenetre.h"
#include "ui/QuilletApp.h"
#include <QApplication>
#include <QTemporaryDir>
#include <QTest>
int main(int argc, char **argv)
{
    QApplication a(argc, argv);
    QuilletApp::preparer(argc > 1 ? std::optional(Theme::Mode::sombre) : std::nullopt);
    QTemporaryDir d;
    QuilletApp q(Ressources::duProgramme(), Stockage(QDir(d.path())));
    q.fenetre().show();
    q.commande().ajuster(q.catalogue().livres()[0], 2);
    q.commande().ajuster(q.catalogue().livres()[2], 1);
    q.commande().setPoidsPese(Grammes{900});
    q.commande().setCodeDestination(QStringLiteral("union-europeenne"));
    QTest::qWait(1200);
    q.fenetre().grab().save(QStringLiteral("/tmp/commande.png"));
    return 0;
}
