#include "model/Stockage.h"

#include "model/CauseSysteme.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

#include <filesystem>

namespace {

// A full disk first takes a part of the bytes and says why only when asked to take the rest; a buffered QSaveFile
// would even commit that part.
bool toutEcrire(QIODevice &fichier, const QByteArray &octets)
{
    qint64 ecrits = 0;
    while (ecrits < octets.size()) {
        const qint64 pris = fichier.write(octets.constData() + ecrits, octets.size() - ecrits);
        if (pris <= 0)
            return false;
        ecrits += pris;
    }
    return true;
}

[[noreturn]] void echouer(const QString &chemin, const QString &raison)
{
    throw ErreurStockage(QStringLiteral("%1 : %2").arg(QDir::toNativeSeparators(chemin), raison));
}

// QSaveFile words the refusal of an existing file itself; opening that file says what the system holds against it.
QString raisonDuRefus(const QSaveFile &fichier)
{
    QFile existant(fichier.fileName());
    if (existant.exists() && !existant.open(QIODevice::ReadWrite))
        return CauseSysteme::enFrancais(existant.errorString());
    return CauseSysteme::enFrancais(fichier.errorString());
}

bool existe(const QString &chemin)
{
    std::error_code erreur;
    const auto statut = std::filesystem::status(chemin.toStdString(), erreur);
    if (statut.type() == std::filesystem::file_type::none)
        echouer(chemin, CauseSysteme::enFrancais(erreur));
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
        echouer(chemin, CauseSysteme::enFrancais(erreur));
    preserver(nom);
    ecrireOctets(nom, octets);
    compris_.insert(nom, octets);
}

void Stockage::ecrireOctets(const QString &nom, const QByteArray &octets) const
{
    QSaveFile fichier(dossier_.filePath(nom));
    if (!fichier.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        echouer(fichier.fileName(), raisonDuRefus(fichier));
    if (!toutEcrire(fichier, octets) || !fichier.commit())
        echouer(fichier.fileName(), CauseSysteme::enFrancais(fichier.errorString()));
}

void Stockage::effacer(const QString &nom)
{
    preserver(nom);
    const QString chemin = dossier_.filePath(nom);
    std::error_code erreur;
    std::filesystem::remove(chemin.toStdString(), erreur);
    if (erreur)
        echouer(chemin, CauseSysteme::enFrancais(erreur));
    compris_.remove(nom);
}

void Stockage::preserver(const QString &nom) const
{
    const QString chemin = dossier_.filePath(nom);
    if (!existe(chemin))
        return;
    const auto contenu = octets(nom);
    if (!contenu)
        echouer(chemin, QFileInfo(chemin).isDir()
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
    ecrireOctets(copie, *contenu);
}
