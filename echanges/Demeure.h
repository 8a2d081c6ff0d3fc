#pragma once

#include "model/Catalogue.h"
#include "model/Preferences.h"

#include <QDate>
#include <QDir>
#include <QList>

namespace Quillet {

// Where what is the user's stands on this machine, as values that a thread can be given.
struct Demeure
{
    Ressources donnees;  // in force
    QList<Livre> livres; // the same with the user's changes
    QDir utilisateur;    // accepted schedules and fees, changes of books, copies
    Preferences preferences;

    static Demeure de(const Catalogue &catalogue, const Preferences &preferences)
    {
        return {catalogue.ressources(), catalogue.donnees().livres, catalogue.stockage().dossier(), preferences};
    }

    [[nodiscard]] bool aDesDonneesPropres() const
    {
        return donnees.origine() == Origine::utilisateur || donnees.origine() == Origine::administrateur;
    }
};

} // namespace Quillet
