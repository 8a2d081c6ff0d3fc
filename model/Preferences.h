#pragma once

#include "model/Fichier.h"

#include <QString>

#include <optional>
#include <utility>

namespace Quillet {

// What the user's habits leave behind: texts of one line by key, in one INI file.
class Preferences
{
public:
    explicit Preferences(QString fichier) : fichier_(std::move(fichier)) {}
    // The file of the platform's per-user configuration.
    static Preferences deLUtilisateur();

    [[nodiscard]] const QString &fichier() const { return fichier_; }
    // Empty when there is none, or none that can be read.
    [[nodiscard]] QString texte(const QString &cle) const;
    struct Trouvee
    {
        QString texte;
        std::optional<ErreurStockage> perte; // a text may have been kept: it went with a file that was damaged
    };
    // Throws ErreurStockage when the file is there and cannot be read.
    [[nodiscard]] Trouvee chercher(const QString &cle) const;
    // Returns once the text is on the disk. Throws ErreurStockage; what was kept before still is. A file that is not
    // whole is copied aside first, and what cannot be read of it counts as lost.
    void ecrire(const QString &cle, const QString &texte);
    // The same of a habit that may be lost: a file that is damaged is left as it is, and a refusal disturbs nobody.
    void retenirSiPossible(const QString &cle, const QString &texte);

private:
    QString fichier_;
};

} // namespace Quillet
