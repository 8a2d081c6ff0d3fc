#pragma once

#include "model/Preferences.h"
#include "model/Ressources.h"
#include "model/Stockage.h"

#include <QTemporaryDir>

namespace Quillet {

// A catalogue and the folder of its user, both for the time of a measurement.
class Echantillon
{
public:
    enum class Images { sans, avec };

    // The shipped one.
    Echantillon();
    // One of any size: the shipped books over and over, all of the first seller. With pictures, each has a file of its
    // own: the shipped drawing, or, of the user's own books, a picture as the program keeps them.
    Echantillon(int nombre, Images images, Origine origine = Origine::exemple);

    [[nodiscard]] const Ressources &ressources() const { return ressources_; }
    [[nodiscard]] Preferences preferences() const
    {
        return Preferences(dossier_.filePath(QStringLiteral("Quillet.ini")));
    }
    [[nodiscard]] Stockage stockage() const { return Stockage(QDir(dossier_.filePath(QStringLiteral("donnees")))); }

private:
    QTemporaryDir dossier_;
    Ressources ressources_;
};

} // namespace Quillet
