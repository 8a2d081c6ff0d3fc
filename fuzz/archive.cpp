// What is taken for an archive: refused with a sentence, or taken whole. What was taken can be loaded, and is what was
// shown before; nothing ever stands beside its folder.
#include "echanges/Reprise.h"
#include "fuzz/Cible.h"

#include <QFile>
#include <QTemporaryDir>

using namespace Quillet;

namespace {

const QDate jour(2026, 3, 2);

// couvertures.cpp reads pictures.
QStringList toutesBonnes(const QStringList & /*chemins*/)
{
    return {};
}

class Maison
{
public:
    void essayer(const QByteArray &octets) const
    {
        QFile fichier(racine_.filePath(QStringLiteral("archive.zip")));
        exiger(fichier.open(QIODevice::WriteOnly) && fichier.write(octets) == octets.size() && fichier.flush(),
               "archive posee");
        try {
            const auto reprise = Reprise::preparer(fichier.fileName(), demeure(), jour, toutesBonnes);
            const Donnees vues = reprise->donnees();
            reprise->prendre(reprise->series(), QDateTime(jour, QTime(9, 0)));
            exiger(catalogue()->donnees() == vues, "reprise comme montree");
        } catch (const Echec &erreur) {
            exiger(!erreur.texte().isEmpty(), "refus sans texte");
        }
        for (const QString &nom :
             QDir(racine_.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot))
            exiger(nom == dossier().dirName() || nom == QLatin1String("Quillet.ini")
                       || nom == QLatin1String("archive.zip"),
                   "rien a cote");
        exiger(dossier().entryList({QStringLiteral("reprise*")}).isEmpty(), "rien ne reste");
        QDir(dossier()).removeRecursively();
        QFile::remove(racine_.filePath(QStringLiteral("Quillet.ini")));
    }

private:
    [[nodiscard]] QDir dossier() const { return {racine_.filePath(QStringLiteral("Quillet"))}; }
    [[nodiscard]] Preferences preferences() const
    {
        return Preferences(racine_.filePath(QStringLiteral("Quillet.ini")));
    }
    [[nodiscard]] std::unique_ptr<Catalogue> catalogue() const
    {
        const Ressources exemple(QDir(QStringLiteral("resources")), Origine::exemple);
        const Stockage stockage(dossier());
        return Catalogue::charge(Ressources::personnelles(stockage.donneesPersonnelles()).value_or(exemple), stockage);
    }
    [[nodiscard]] Demeure demeure() const { return Demeure::de(*catalogue(), preferences()); }

    QTemporaryDir racine_;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *octets, std::size_t taille)
{
    static const Maison maison;
    maison.essayer(contenu(octets, taille));
    return 0;
}
