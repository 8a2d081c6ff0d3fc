#pragma once

#include "model/Json.h"
#include "model/Tarifs.h"

#include <QDir>
#include <QString>

#include <optional>
#include <stdexcept>

// A user's file could not be written or deleted; the text says why, in French.
class ErreurStockage : public std::runtime_error
{
public:
    explicit ErreurStockage(const QString &texte) : std::runtime_error(texte.toStdString()) {}
    [[nodiscard]] QString texte() const { return QString::fromUtf8(what()); }
};

// The user's folder of JSON files. Files are written whole or not at all, and a file that this program cannot
// read is copied aside before anything replaces or deletes it.
class Stockage
{
public:
    explicit Stockage(const QDir &dossier) : dossier_(dossier) {}
    // The folder "Quillet" of the platform's per-user data.
    static Stockage deLUtilisateur();

    // None when the file is missing or cannot be read as a T.
    template <typename T>
    [[nodiscard]] std::optional<T> lire(const QString &nom) const
    {
        const auto contenu = octets(nom);
        if (!contenu)
            return std::nullopt;
        try {
            return Json::decoder<T>(*contenu, nom);
        } catch (const Json::Erreur &) {
            return std::nullopt; // a user's file is optional: shipped values stand
        }
    }

    // Throws ErreurStockage; the file is then as it was.
    template <typename T>
    void ecrire(const T &valeur, const QString &nom) const
    {
        preserver<T>(nom);
        ecrireOctets(Json::encoder(valeur), nom);
    }

    // A missing file is no error. Throws ErreurStockage; the file is then as it was.
    template <typename T>
    void effacer(const QString &nom) const
    {
        preserver<T>(nom);
        effacerFichier(nom);
    }

    // Every saved schedule that can be read, by file name.
    [[nodiscard]] QList<TarifsColissimo> grillesEnregistrees() const;

private:
    template <typename T>
    void preserver(const QString &nom) const
    {
        if (dossier_.exists(nom) && !lire<T>(nom))
            copierAPart(nom);
    }

    [[nodiscard]] std::optional<QByteArray> octets(const QString &nom) const;
    void ecrireOctets(const QByteArray &octets, const QString &nom) const;
    void effacerFichier(const QString &nom) const;
    void copierAPart(const QString &nom) const;

    QDir dossier_;
};
