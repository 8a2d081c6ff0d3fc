#include "ui/Menus.h"

#include "ui/Contexte.h"
#include "ui/Fenetre.h"
#include "ui/FeuilleGuide.h"
#include "ui/FeuilleRaccourcis.h"
#include "ui/Raccourcis.h"
#include "ui/echanges/Echanges.h"
#include "ui/echanges/Listes.h"
#include "ui/misesajour/FeuilleMiseAJour.h"
#include "ui/vendeurs/FeuilleVendeurs.h"
#include "watch/MisesAJour.h"

#include <QApplication>
#include <QMenuBar>
#include <QMessageBox>

namespace Quillet {

namespace {

void aPropos(Fenetre &fenetre)
{
    auto *boite = new QMessageBox(
        QMessageBox::NoIcon, QStringLiteral("À propos de Quillet"),
        QStringLiteral(
            "<h3>Quillet %1</h3><p>Le prix d’une commande, et ce qu’il en reste, pour les auteurs qui vendent leurs "
            "livres par la poste.</p>"
            "<p>© 2026 The Quillet authors · licence MIT</p>")
            .arg(QApplication::applicationVersion()),
        QMessageBox::Ok, &fenetre);
    boite->setIconPixmap(fenetre.windowIcon().pixmap(64));
    boite->setAttribute(Qt::WA_DeleteOnClose);
    boite->open(); // a reader that chooses in a menu waits until the choice has been obeyed
}

void garnirDonnees(QMenu &menu, Fenetre &fenetre, const Contexte &contexte)
{
    menu.addAction(QStringLiteral("&Vendeurs et emballages…"), &fenetre,
                   [&fenetre, &contexte] { FeuilleVendeurs::ouvrir(contexte, &fenetre); });
}

void garnirEchanges(QMenu &menu, Fenetre &fenetre, const Contexte &contexte)
{
    auto *echanges = new Echanges(contexte, &fenetre);
    menu.addAction(QStringLiteral("&Exporter mes données…"), echanges, &Echanges::exporter);
    menu.addAction(QStringLiteral("&Importer…"), echanges, &Echanges::importer);
    menu.addAction(QStringLiteral("Revenir à une &copie…"), echanges, &Echanges::revenirAUneCopie);
    QObject::connect(&fenetre, &Fenetre::posee, echanges, &Echanges::garderChaqueJour);
}

void garnirListes(QMenu &menu, Fenetre &fenetre, const Contexte &contexte)
{
    menu.addAction(QStringLiteral("&Lire une liste de livres…"), &fenetre,
                   [&fenetre, &contexte] { Listes::lire(contexte, &fenetre); });
    menu.addAction(QStringLiteral("&Écrire la liste des livres…"), &fenetre,
                   [&fenetre, &contexte] { Listes::ecrire(contexte, &fenetre); });
}

void garnirQuillet(QMenu &menu, Fenetre &fenetre, const Contexte &contexte, MisesAJour &misesAJour)
{
    menu.addAction(QStringLiteral("À &propos de Quillet"), &fenetre, [&fenetre] { aPropos(fenetre); })
        ->setMenuRole(QAction::AboutRole);
    const auto chercher = [&fenetre, &misesAJour] { (new FeuilleMiseAJour(misesAJour, &fenetre))->ouvrir(); };
    QAction *rechercher = menu.addAction(QStringLiteral("&Rechercher les mises à jour…"), &fenetre, chercher);
    rechercher->setMenuRole(QAction::ApplicationSpecificRole);
    const auto suivre = [rechercher, &misesAJour] { rechercher->setEnabled(misesAJour.peutVerifier()); };
    QObject::connect(&misesAJour, &MisesAJour::change, rechercher, suivre);
    suivre();
    menu.addSeparator();
    garnirDonnees(menu, fenetre, contexte);
    garnirEchanges(menu, fenetre, contexte);
    garnirListes(menu, fenetre, contexte);
    menu.addSeparator();
    QAction *quitter = menu.addAction(QStringLiteral("&Quitter"), &fenetre, &QWidget::close);
    quitter->setShortcuts(Raccourcis::touches(Raccourcis::Geste::quitter));
    quitter->setMenuRole(QAction::QuitRole);
}

void garnirAide(QMenu &menu, Fenetre &fenetre)
{
    menu.addAction(QStringLiteral("&Guide"), &fenetre,
                   [&fenetre] { (new FeuilleGuide(FeuilleGuide::fichierLivre(), &fenetre))->ouvrir(); });
    QAction *raccourcis = menu.addAction(QStringLiteral("&Raccourcis clavier"), &fenetre,
                                         [&fenetre] { (new FeuilleRaccourcis(&fenetre))->ouvrir(); });
    raccourcis->setShortcuts(Raccourcis::touches(Raccourcis::Geste::aide)); // a field keeps its "?"
}

} // namespace

void Menus::garnir(Fenetre &fenetre, const Contexte &contexte, MisesAJour &misesAJour)
{
    garnirQuillet(*fenetre.menuBar()->addMenu(QStringLiteral("&Quillet")), fenetre, contexte, misesAJour);
    garnirAide(*fenetre.menuBar()->addMenu(QStringLiteral("&Aide")), fenetre);
}

} // namespace Quillet
