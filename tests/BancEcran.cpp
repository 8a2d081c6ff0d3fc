#include "tests/BancEcran.h"

#include "visite/Dialogues.h"
#include "visite/Ecran.h"

#include <QDialog>
#include <QTest>

namespace Quillet {

void BancEcran::demarrer()
{
    demarrer(donnees.preferences());
}

void BancEcran::demarrer(const Preferences &preferences)
{
    app.reset();
    donnees.deposer();
    app = std::make_unique<QuilletApp>(
        donnees.ressources(), donnees.stockage(), preferences, [this] { return jour; }, pages, misesAJour);
    app->fenetre().show();
    if (!QTest::qWaitForWindowActive(&app->fenetre()))
        qFatal("La fenêtre ne s’ouvre pas");
}

void BancEcran::commander(const QString &destination) const
{
    app->commande().ajuster(donnees.livres[0], 2);
    app->commande().setCodeDestination(CodeDestination(destination));
}

QDialog *BancEcran::ouvrir(const QString &bouton) const
{
    QDialog *feuille = Ecran::cliquer(&app->fenetre(), bouton) ? Dialogues::devant() : nullptr;
    if (!feuille || !QTest::qWaitForWindowActive(feuille))
        qFatal("Aucune feuille après : %s", qPrintable(bouton));
    return feuille;
}

void BancEcran::revenirA(QWidget *fenetre)
{
    QWidget ailleurs;
    for (QWidget *devant : {&ailleurs, fenetre}) {
        devant->show();
        devant->activateWindow();
        if (!QTest::qWaitForWindowActive(devant))
            qFatal("Une fenêtre ne vient pas devant");
    }
}

} // namespace Quillet
