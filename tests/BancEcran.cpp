#include "tests/BancEcran.h"

#include <QAccessible>
#include <QMessageBox>
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
        ressources(), donnees.stockage(), preferences, [this] { return jour; }, pages, misesAJour);
    app->fenetre().show();
    if (!QTest::qWaitForWindowActive(&app->fenetre()))
        qFatal("La fenêtre ne s’ouvre pas");
}

void BancEcran::commander(const QString &destination) const
{
    app->commande().ajuster(donnees.livres[0], 2);
    app->commande().setCodeDestination(CodeDestination(destination));
}

Ressources BancEcran::ressources() const
{
    const QDir personnelles = donnees.stockage().donneesPersonnelles();
    if (origine != Origine::utilisateur)
        return Ressources(donnees.ressources().dossier(), origine);
    if (!personnelles.exists())
        DossierPersonnel::creer(personnelles, donnees.ressources(), donnees.reglages, donnees.livres, {});
    return Ressources::enVigueur(personnelles);
}

QDialog *BancEcran::ouvrir(const QString &bouton) const
{
    QDialog *feuille = Ecran::cliquer(&app->fenetre(), bouton) ? Dialogues::devant() : nullptr;
    if (!feuille || !QTest::qWaitForWindowActive(feuille))
        qFatal("Aucune feuille après : %s", qPrintable(bouton));
    return feuille;
}

QString BancEcran::luAuTableau(const QWidget *fenetre, const QString &rangee, const QString &tete)
{
    const auto nom = [](const QAccessibleInterface *lu) { return lu ? lu->text(QAccessible::Name) : QString(); };
    for (auto *widget : fenetre->findChildren<QWidget *>()) {
        auto *lu = widget->isVisible() ? QAccessible::queryAccessibleInterface(widget) : nullptr;
        if (!lu || lu->role() != QAccessible::Table)
            continue;
        const auto *tableau = lu->tableInterface();
        for (int ligne = 0; ligne < tableau->rowCount(); ++ligne)
            for (int colonne = 0; colonne < tableau->columnCount(); ++colonne) {
                auto *cellule = tableau->cellAt(ligne, colonne);
                const auto *place = cellule->tableCellInterface();
                if (place->table() != lu || place->rowIndex() != ligne || place->columnIndex() != colonne
                    || lu->indexOfChild(cellule) < 0 || !tableau->cellAt(ligne + 1000, colonne))
                    qFatal("Une cellule ne sait pas où elle est");
                if ((nom(tableau->cellAt(ligne, 0)) + u',').startsWith(rangee + u',')
                    && nom(place->columnHeaderCells().value(0)) == tete)
                    return lisible(nom(cellule));
            }
    }
    return {};
}

Dialogues::Reponse BancEcran::lire(QString &message)
{
    return [&message](QDialog *boite) {
        message = qobject_cast<QMessageBox *>(boite)->text();
        boite->reject();
    };
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
