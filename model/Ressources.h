#pragma once

#include "model/Json.h"
#include "model/Tarifs.h"

#include <QDir>
#include <QString>

#include <optional>

namespace Quillet {

// Data that cannot be read: the program cannot go on.
class RessourceIllisible : public Echec
{
public:
    explicit RessourceIllisible(const QString &raison) : Echec(QStringLiteral("Ressource illisible : ") + raison) {}
};

// Whose data a folder holds.
enum class Origine {
    dossier,        // one that was named
    exemple,        // invented, shipped with the program
    administrateur, // the sellers' own, beside the program: only read
    utilisateur,    // the sellers' own, in the user's data: the screens change them
};

// The folder of books, covers, destinations, settings and schedules; only read here.
class Ressources
{
public:
    explicit Ressources(const QDir &dossier, Origine origine = Origine::dossier) : dossier_(dossier), origine_(origine)
    {
    }
    // Those in force: the user's own folder as soon as it is there, whatever its state, for an invoice must never leave
    // with the example's names; else the program's. Throws RessourceIllisible when there is none.
    static Ressources enVigueur(const QDir &personnelles);
    // The user's own; none as long as nothing stands there.
    static std::optional<Ressources> personnelles(const QDir &dossier);
    // Found relative to the executable; throws RessourceIllisible when there is none.
    static Ressources duProgramme();
    // The same around any folder of a program: the sellers' own data by the same rule, else the shipped ones.
    static Ressources autourDe(const QDir &programme);

    [[nodiscard]] Origine origine() const { return origine_; }
    [[nodiscard]] const QDir &dossier() const { return dossier_; }

    // Reads `nom`.json; throws RessourceIllisible.
    template <typename T>
    [[nodiscard]] T lire(const QString &nom) const
    {
        try {
            return decoder<T>(nom, nullptr);
        } catch (const Json::Erreur &erreur) {
            refuser(erreur.texte());
        }
    }

    // Reads what can be read of `nom`.json and collects all the rest; none when nothing can be read.
    template <typename T>
    [[nodiscard]] std::optional<T> examiner(const QString &nom, Json::Constats &constats) const
    {
        try {
            return decoder<T>(nom, &constats);
        } catch (const Json::Erreur &) { // noted where it was refused
            return std::nullopt;
        }
    }

    // Whether there is such a file: one that came with a later version may be missing in the sellers' own folder.
    [[nodiscard]] bool existe(const QString &nom) const { return dossier_.exists(nom + QStringLiteral(".json")); }

    // Every schedule, by file name; at least one, or throws RessourceIllisible.
    [[nodiscard]] QList<TarifsColissimo> tarifs() const;
    // Their files, without ".json"; maybe none.
    [[nodiscard]] QStringList nomsDesTarifs() const;
    // What is said when there are none.
    static QString tarifsIntrouvables();
    // Path of a file or folder in here, whether it exists or not.
    [[nodiscard]] QString chemin(const QString &nom) const { return dossier_.filePath(nom); }

private:
    template <typename T>
    [[nodiscard]] T decoder(const QString &nom, Json::Constats *constats) const
    {
        const Json::Lieu fichier(nom + QStringLiteral(".json"), constats);
        const QJsonValue json = Json::analyser(octets(fichier), fichier);
        T valeur{};
        Json::lire(json, Json::Lieu(nom, constats), valeur);
        return valeur;
    }
    [[nodiscard]] QByteArray octets(const Json::Lieu &fichier) const;
    [[noreturn]] void refuser(const QString &raison) const;

    QDir dossier_;
    Origine origine_;
};

} // namespace Quillet
