#pragma once

#include "ui/QuilletApp.h"
#include "visite/SiteDeLaVisite.h"

#include <QDir>
#include <QTemporaryDir>

class QDialog;
class QWidget;

namespace Quillet {

// Drives the real window through one typical order, as a seller would: by clicks and keys.
class Parcours
{
public:
    // Pictures go to `dossier`, their names ending in `suffixe`; `bavard` prints the amounts read on the screen. The
    // window is as it opens, or of `taille`.
    Parcours(const QDir &dossier, QString suffixe, bool bavard, std::optional<QSize> taille = std::nullopt);

    // False when a picture could not be written or the screen does not hold what the tour looks for.
    bool jouer();

private:
    bool composerLaCommande();
    bool changerDeDestination(const QString &libelle);
    bool peserLeColis(const QString &grammes);
    void raconter(const QString &etape);
    // The sheet that a click on this button opens, at its own size; null when there is none.
    QDialog *ouvrir(const QString &bouton, QSize taille);
    static QDialog *ouverte(bool demandee, QSize taille);
    bool chercherUnPays();
    bool lireLAide();
    bool repondreALAcheteur();
    bool preparerLesDocuments();
    bool accepterLesNouveautes();
    bool reporterDesPrix();
    bool changerUnLivre();
    // Exports the data as they are, and shows them at the end beside what they have become.
    bool emporter();
    bool rapporter();
    // Answers the file dialog behind an entry of the menu, and waits for what comes after it; null: nothing does.
    QDialog *donnerLArchive(const QString &entree);
    // Another start, on the example.
    bool premiersPas();
    // What is in front, or the surroundings of a part of it, whatever scrolling hides; with the list that is open over.
    bool photographier(const QString &nom, QWidget *partie = nullptr);

    QDir dossier_;
    QString suffixe_;
    bool bavard_;
    std::optional<QSize> taille_;
    QTemporaryDir donnees_;
    QTemporaryDir autresDonnees_;
    SiteDeLaVisite site_;
    Stockage stockage_;
    QuilletApp quillet_;
};

} // namespace Quillet
