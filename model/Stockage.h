#pragma once

#include "model/Fichier.h"
#include "model/Json.h"
#include "model/Tarifs.h"

#include <QDir>
#include <QHash>
#include <QString>

#include <optional>

namespace Quillet {

// The user's folder of JSON files. Files are written whole or not at all, and a file that this program did not
// understand, or that somebody else changed meanwhile, is copied aside before anything replaces or deletes it.
class Stockage
{
public:
    explicit Stockage(const QDir &dossier) : dossier_(dossier) {}
    // The folder "Quillet" of the platform's per-user data.
    static Stockage deLUtilisateur();
    // The same under any folder that stands for that one.
    static Stockage dans(const QDir &commun) { return Stockage(QDir(commun.filePath(QStringLiteral("Quillet")))); }

    // The names of its files, but for the schedules'.
    static QString fichierDesLivres() { return QStringLiteral("livres-modifies.json"); }
    static QString fichierDesFrais() { return QStringLiteral("frais-paypal.json"); }
    [[nodiscard]] const QDir &dossier() const { return dossier_; }
    // Where the sellers' own data are, once there are some.
    [[nodiscard]] QDir donneesPersonnelles() const { return {dossier_.filePath(QStringLiteral("donnees"))}; }

    // None when the file is missing or cannot be read as a T.
    template <typename T>
    [[nodiscard]] std::optional<T> lire(const QString &nom)
    {
        const auto contenu = Fichier::lire(dossier_.filePath(nom), Fichier::Borne::donnees);
        if (!contenu)
            return std::nullopt;
        try {
            T valeur = Json::decoder<T>(*contenu, nom);
            compris_.insert(nom, *contenu);
            return valeur;
        } catch (const Json::Erreur &) {
            return std::nullopt; // a user's file is optional: shipped values stand
        }
    }

    // Throws ErreurStockage; the file is then as it was.
    template <typename T>
    void ecrire(const T &valeur, const QString &nom)
    {
        remplacer(nom, Json::encoder(valeur));
    }

    // A missing file is no error. Throws ErreurStockage; the file is then as it was.
    void effacer(const QString &nom);

    // Every saved schedule that can be read, by file name.
    [[nodiscard]] QList<TarifsColissimo> grillesEnregistrees();

private:
    void remplacer(const QString &nom, const QByteArray &octets);
    void preserver(const QString &nom) const;

    QDir dossier_;
    QHash<QString, QByteArray> compris_; // what each file held when it was last read or written here
};

} // namespace Quillet
