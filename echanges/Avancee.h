#pragma once

#include "model/Preferences.h"

#include <QDir>
#include <QStringList>

namespace Quillet {

// Puts what was unpacked and decided on where it belongs, file by file, from wherever it was stopped: each step can be
// taken again. All throw Echec.
class Avancee
{
public:
    Avancee(const QDir &reprise, const QDir &utilisateur);

    // To be kept in that folder: these are the files of what will be in force, and no other. The sellers' folder that
    // stands there is first put aside under the second name, if there is one.
    static void noter(const QDir &reprise, const QStringList &noms, const QString &ecart);

    void placerLesFichiers();
    // Afterwards, where preferences are written: of two who write them at once, one would lose.
    void placerLesSeries(const Preferences &preferences) const;

private:
    void ecarter() const;
    void placerLesDonnees();
    void retirerLesAutres() const;
    void placerCeuxDeLUtilisateur();
    void placer(const QString &nom) const;
    template <typename T>
    void reecrire(const QString &nom);

    QDir reprise_;
    QDir utilisateur_;
    QStringList noms_;
    QString ecart_;
};

} // namespace Quillet
