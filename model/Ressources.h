#pragma once

#include "model/Json.h"
#include "model/Tarifs.h"

#include <QDir>
#include <QString>

// Shipped data that cannot be read: the program cannot go on.
class RessourceIllisible : public Echec
{
public:
    explicit RessourceIllisible(const QString &raison) : Echec(QStringLiteral("Ressource illisible : ") + raison) {}
};

// The read-only folder of shipped data.
class Ressources
{
public:
    explicit Ressources(const QDir &dossier) : dossier_(dossier) {}
    // Found relative to the executable; throws RessourceIllisible when there is none.
    static Ressources duProgramme();

    // Reads `nom`.json; throws RessourceIllisible.
    template <typename T>
    [[nodiscard]] T lire(const QString &nom) const
    {
        try {
            return Json::decoder<T>(octets(nom + QStringLiteral(".json")), nom);
        } catch (const Json::Erreur &erreur) {
            throw RessourceIllisible(erreur.texte());
        }
    }

    // Every shipped schedule, by file name; at least one, or throws RessourceIllisible.
    [[nodiscard]] QList<TarifsColissimo> tarifs() const;
    // Path of a file or folder in here, whether it exists or not.
    [[nodiscard]] QString chemin(const QString &nom) const { return dossier_.filePath(nom); }

private:
    [[nodiscard]] QByteArray octets(const QString &fichier) const;

    QDir dossier_;
};
