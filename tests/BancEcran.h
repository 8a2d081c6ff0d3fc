#pragma once

#include "tests/Banc.h"
#include "ui/Fenetre.h"
#include "ui/QuilletApp.h"
#include "visite/Dialogues.h"
#include "visite/Ecran.h"
#include "visite/HorsReseau.h"

#include <QDialog>
#include <QTest>

#include <memory>

namespace Quillet {

// The real window over a small catalogue.
struct BancEcran
{
    Banc donnees;
    PagesSurveillees pages = horsReseau();
    SourceMisesAJour misesAJour;
    QDate jour = jourDuBanc; // the program's, at any time
    Origine origine = Origine::dossier;
    std::unique_ptr<QuilletApp> app;

    // Starts the program, again if need be, on `donnees` as they are now.
    void demarrer();
    void demarrer(const Preferences &preferences);
    // What it starts on: `donnees`, or once they are the sellers' own, their folder.
    [[nodiscard]] Ressources ressources() const;
    // Two copies of the first book.
    void commander(const QString &destination) const;
    // The sheet behind a button of the window.
    [[nodiscard]] QDialog *ouvrir(const QString &bouton) const;
    // What a screen reader finds in a table of the window, in the row that is called so and under that head.
    [[nodiscard]] static QString luAuTableau(const QWidget *fenetre, const QString &rangee, const QString &tete);
    // Reads the sentence of a message, then closes it.
    static Dialogues::Reponse lire(QString &message);
    // Looks at another window and comes back.
    static void revenirA(QWidget *fenetre);
};

} // namespace Quillet
