#pragma once

#include "model/Fichier.h"

#include <QString>

#include <utility>

namespace Quillet {

// What the user's habits leave behind: texts of one line by key, in one INI file.
class Preferences
{
public:
    explicit Preferences(QString fichier) : fichier_(std::move(fichier)) {}
    // The file of the platform's per-user configuration.
    static Preferences deLUtilisateur();

    // Empty when there is none.
    [[nodiscard]] QString texte(const QString &cle) const;
    // The same, but throws ErreurStockage when the file is there and cannot be read.
    [[nodiscard]] QString texteOuErreur(const QString &cle) const;
    // Returns once the text is on the disk. Throws ErreurStockage; what was kept before still is.
    void ecrire(const QString &cle, const QString &texte);

private:
    QString fichier_;
};

} // namespace Quillet
