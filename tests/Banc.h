#pragma once

#include "model/Catalogue.h"
#include "model/Commande.h"
#include "model/Preferences.h"

#include <QTemporaryDir>

namespace Quillet {

// A small catalogue on temporary folders, read and written by the real code. Change the records, then load.
struct Banc
{
    Banc();

    QList<Livre> livres;
    QList<Destination> destinations;
    QList<TarifsColissimo> tarifs;
    Reglages reglages;
    QList<Pays> pays; // a resource unless it is empty

    // As they would be loaded, without a file.
    [[nodiscard]] Donnees donnees() const { return {livres, tarifs, destinations, reglages, pays}; }
    // Writes the records as shipped resources.
    void deposer() const;
    // The same, then loads them with the user's files over them.
    [[nodiscard]] std::unique_ptr<Catalogue> charger() const;

    [[nodiscard]] QString cheminUtilisateur(const QString &nom = {}) const;
    void ecrireUtilisateur(const QString &nom, const QByteArray &octets) const;
    [[nodiscard]] QByteArray lireUtilisateur(const QString &nom) const;
    void ecrireRessource(const QString &nom, const QByteArray &octets) const;
    [[nodiscard]] Ressources ressources() const
    {
        return Ressources(QDir(dossier_.filePath(QStringLiteral("partage"))));
    }
    [[nodiscard]] Preferences preferences() const
    {
        return Preferences(dossier_.filePath(QStringLiteral("Quillet.ini")));
    }
    [[nodiscard]] Stockage stockage() const { return Stockage(QDir(cheminUtilisateur())); }

private:
    QTemporaryDir dossier_;
};

// A day on which the bench's schedule is in force.
inline const QDate jourDuBanc(2026, 3, 2);
// What a screen or a message says, its no-break spaces made plain.
QString lisible(QString texte);
Livre unLivre(qint64 id, Vendeur vendeur, Centimes prix, std::optional<Grammes> poids);
TarifsColissimo desTarifs(const char *validite, Centimes premierPrix);
CodeDestination vers(const char *code);

} // namespace Quillet
