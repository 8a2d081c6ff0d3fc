#include "ui/VeilleDesDonnees.h"

#include "composants/Alerte.h"
#include "composants/Boutons.h"
#include "composants/Pile.h"
#include "textes/TextesDonnees.h"
#include "ui/Contexte.h"

#include <QPushButton>

#include <chrono>

using namespace std::chrono_literals;

namespace Quillet {

VeilleDesDonnees::VeilleDesDonnees(const Contexte &contexte, QWidget *parent)
    : QWidget(parent), contexte_(contexte), avis_(new Alerte)
{
    QPushButton *relire = Boutons::deFeuille(QStringLiteral("Les relire"), QStringLiteral("arrow.counterclockwise"));
    connect(relire, &QPushButton::clicked, this, &VeilleDesDonnees::relire);
    Pile::rangee(this, {.marges = {24, 8, 24, 8}, .espace = 16}, {{avis_, 1}, relire});
    hide();

    repos_.setSingleShot(true);
    repos_.setInterval(500ms);
    connect(&repos_, &QTimer::timeout, this, &VeilleDesDonnees::regarder);
    connect(&guetteur_, &QFileSystemWatcher::directoryChanged, &repos_, qOverload<>(&QTimer::start));
    connect(&guetteur_, &QFileSystemWatcher::fileChanged, &repos_, qOverload<>(&QTimer::start));
    // A disk of another computer tells of nothing: it is asked.
    connect(&contexte.jour, &JourCourant::retour, &repos_, qOverload<>(&QTimer::start));
    connect(&contexte.catalogue, &Catalogue::recharge, &repos_, qOverload<>(&QTimer::start));
    repos_.start();
}

void VeilleDesDonnees::surveiller()
{
    const QStringList suivis = guetteur_.files() + guetteur_.directories();
    if (!suivis.isEmpty())
        guetteur_.removePaths(suivis);
    if (contexte_.donnees().personnelles) {
        const QDir &dossier = contexte_.catalogue.ressources().dossier();
        guetteur_.addPath(dossier.path());
        for (const QString &nom : Fichier::lister(dossier, QStringLiteral("*.json"))) // may be written in place
            guetteur_.addPath(dossier.filePath(nom));
    }
}

void VeilleDesDonnees::regarder()
{
    surveiller(); // a file that was replaced is another one
    const QStringList changes = contexte_.catalogue.changesAilleurs();
    avis_->montrer(TextesDonnees::changeesAilleurs(changes));
    setVisible(!changes.isEmpty());
}

void VeilleDesDonnees::relire()
{
    try {
        contexte_.catalogue.recharger();
        hide();
    } catch (const RessourceIllisible &erreur) {
        avis_->montrer(erreur.texte());
    }
}

} // namespace Quillet
