#pragma once

#include "model/Preferences.h"
#include "model/Ressources.h"
#include "model/Stockage.h"

#include <QTemporaryDir>

// A catalogue of any size on a temporary folder: the shipped books over and over, all of the first seller.
class Echantillon
{
public:
    enum class Images { sans, avec };

    // With pictures, each book has a file of its own.
    Echantillon(int nombre, Images images);

    [[nodiscard]] Ressources ressources() const
    {
        return Ressources(QDir(dossier_.filePath(QStringLiteral("partage"))));
    }
    [[nodiscard]] Preferences preferences() const
    {
        return Preferences(dossier_.filePath(QStringLiteral("Quillet.ini")));
    }
    [[nodiscard]] Stockage stockage() const { return Stockage(QDir(dossier_.filePath(QStringLiteral("donnees")))); }

private:
    QTemporaryDir dossier_;
};
