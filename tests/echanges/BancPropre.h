#pragma once

#include "echanges/Archive.h"
#include "echanges/Bagage.h"
#include "echanges/Demeure.h"
#include "model/DossierPersonnel.h"
#include "tests/Banc.h"

#include <QDirIterator>

namespace Quillet {

// The bench's books as the sellers' own, with pictures; nothing of the kind before `installer`.
struct BancPropre : Banc
{
    BancPropre() { deposer(); }

    void installer(const QHash<QString, QByteArray> &couvertures = {{QStringLiteral("phare.png"), "un"}}) const
    {
        DossierPersonnel::creer(stockage().donneesPersonnelles(), ressources(), reglages, livres, couvertures);
    }
    [[nodiscard]] std::unique_ptr<Catalogue> ouvrir() const
    {
        const auto propres = Ressources::personnelles(stockage().donneesPersonnelles());
        const Ressources livrees(ressources().dossier(), Origine::exemple);
        return Catalogue::charge(propres.value_or(livrees), stockage());
    }
    [[nodiscard]] Demeure demeure() const { return Demeure::de(*ouvrir(), preferences()); }
    // Packed with what stands here today.
    [[nodiscard]] QString exporter(const QString &nom = QStringLiteral("export.zip")) const
    {
        const QString chemin = cheminUtilisateur(QStringLiteral("../") + nom);
        Archive::ecrire(chemin, Bagage::de(demeure(), jourDuBanc));
        return chemin;
    }
    // Every file of the user's by name, but for the copies.
    [[nodiscard]] QMap<QString, QByteArray> fichiers() const
    {
        QMap<QString, QByteArray> fichiers;
        const QDir dossier(cheminUtilisateur());
        QDirIterator suite(dossier.path(), QDir::Files, QDirIterator::Subdirectories);
        while (suite.hasNext())
            if (const QString nom = dossier.relativeFilePath(suite.next()); !nom.startsWith(QLatin1String("copies/")))
                fichiers.insert(nom, lireUtilisateur(nom));
        fichiers.insert(QStringLiteral("Quillet.ini"), Fichier::lire(preferences().fichier(), 1000).value_or(""));
        return fichiers;
    }
};

} // namespace Quillet
