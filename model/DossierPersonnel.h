#pragma once

#include "model/EcritureLivres.h"
#include "model/Fichier.h"

#include <QDir>
#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

namespace Quillet {

class Ressources;
struct Reglages;

// Somebody else wrote a file since it was read here: another computer that shares the folder, an editor, a backup.
class DonneesChangees : public ErreurStockage
{
public:
    explicit DonneesChangees(const QString &chemin);
};

// The sellers' own data, which the screens change. A file is written whole, and only over what was last read of it.
class DossierPersonnel
{
public:
    static QString livres() { return QStringLiteral("livres.json"); }
    static QString reglages() { return QStringLiteral("reglages.json"); }

    // Takes note of what its files hold: to be called before they are read.
    explicit DossierPersonnel(const QDir &dossier);

    // Throws ErreurStockage, DonneesChangees; the file is then as it was.
    void ecrire(const QList<Livre> &livres);
    void ecrire(const Reglages &reglages);
    // The data files that are not as they were read or written here, new and lost ones too.
    [[nodiscard]] QStringList changes() const;
    // The paths of the folder and of its data files, by now.
    [[nodiscard]] QStringList chemins() const;
    // Whether both noted the same of the same folder.
    bool operator==(const DossierPersonnel &autre) const
    {
        return dossier_ == autre.dossier_ && contenus_ == autre.contenus_;
    }

    // A new folder, whole or not at all: these sellers and books with their pictures by name, and destinations,
    // countries and schedules as in `modele`. Throws ErreurStockage; also when there is one.
    static void creer(const QDir &dossier, const Ressources &modele, const Reglages &reglages,
                      const QList<Livre> &livres, const QHash<QString, QByteArray> &couvertures);

private:
    void remplacer(const QString &nom, const QByteArray &octets);

    using Contenus = QHash<QString, std::optional<QByteArray>>;
    static Contenus lus(const QDir &dossier);

    QDir dossier_;
    EcritureLivres ecriture_;
    Contenus contenus_; // of each data file, as last read or written here; none for one that cannot be read
};

} // namespace Quillet
