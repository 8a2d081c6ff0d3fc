#include "model/Stockage.h"

#include "model/CauseSysteme.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <filesystem>

namespace {

bool existe(const QString &chemin)
{
    std::error_code erreur;
    const auto statut = std::filesystem::status(chemin.toStdString(), erreur);
    if (statut.type() == std::filesystem::file_type::none)
        throw ErreurStockage(chemin, CauseSysteme::enFrancais(erreur));
    return statut.type() != std::filesystem::file_type::not_found;
}

} // namespace

Stockage Stockage::deLUtilisateur()
{
    const QDir donnees(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    return Stockage(QDir(donnees.filePath(QStringLiteral("Quillet"))));
}

QList<TarifsColissimo> Stockage::grillesEnregistrees()
{
    QList<TarifsColissimo> grilles;
    const QStringList noms =
        dossier_.entryList({TarifsColissimo::motifDeFichier()}, QDir::Files | QDir::CaseSensitive, QDir::Name);
    for (const QString &nom : noms)
        if (const auto tarifs = lire<TarifsColissimo>(nom))
            grilles.append(*tarifs);
    return grilles;
}

std::optional<QByteArray> Stockage::octets(const QString &nom) const
{
    QFile fichier(dossier_.filePath(nom));
    if (!fichier.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray contenu = fichier.readAll();
    return fichier.error() == QFile::NoError ? std::optional(contenu) : std::nullopt;
}

void Stockage::remplacer(const QString &nom, const QByteArray &octets)
{
    const QString chemin = dossier_.absolutePath();
    std::error_code erreur;
    std::filesystem::create_directories(chemin.toStdString(), erreur);
    if (erreur)
        throw ErreurStockage(chemin, CauseSysteme::enFrancais(erreur));
    preserver(nom);
    Fichier::ecrire(dossier_.filePath(nom), octets);
    compris_.insert(nom, octets);
}

void Stockage::effacer(const QString &nom)
{
    preserver(nom);
    const QString chemin = dossier_.filePath(nom);
    std::error_code erreur;
    std::filesystem::remove(chemin.toStdString(), erreur);
    if (erreur)
        throw ErreurStockage(chemin, CauseSysteme::enFrancais(erreur));
    compris_.remove(nom);
}

void Stockage::preserver(const QString &nom) const
{
    const QString chemin = dossier_.filePath(nom);
    if (!existe(chemin))
        return;
    const auto contenu = octets(nom);
    if (!contenu)
        throw ErreurStockage(chemin,
                             QFileInfo(chemin).isDir()
                                 ? QStringLiteral("un dossier occupe la place du fichier")
                                 : QStringLiteral("ce qui s’y trouve ne peut pas être lu, et n’est donc pas remplacé"));
    if (const auto connu = compris_.constFind(nom); connu != compris_.constEnd() && *connu == *contenu)
        return;
    QString copie = nom + QStringLiteral(".illisible");
    for (int numero = 2; existe(dossier_.filePath(copie)); ++numero) {
        if (octets(copie) == contenu)
            return; // already kept, by an attempt whose write then failed
        copie = QStringLiteral("%1.illisible-%2").arg(nom, QString::number(numero));
    }
    Fichier::ecrire(dossier_.filePath(copie), *contenu);
}
