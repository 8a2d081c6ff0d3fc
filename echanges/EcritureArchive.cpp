#include "echanges/Archive.h"
#include "echanges/Bagage.h"
#include "echanges/Disque.h"
#include "echanges/ErreurZip.h"
#include "echanges/PiecesDArchive.h"
#include "model/Fichier.h"

#include <QFile>
#include <QFileInfo>
#include <QUuid>

#include <array>
#include <utility>

namespace Quillet {

namespace {

[[noreturn]] void refuser(const QString &chemin, zip_error_t *erreur)
{
    throw ErreurStockage(chemin, Zip::enFrancais(erreur));
}

// Of a file or of bytes that outlive the archive.
Zip::Source source(const Bagage::Piece &piece)
{
    Zip::Erreur erreur;
    const auto taille = static_cast<zip_uint64_t>(piece.octets.size());
    const auto ouvrir = [&] {
        return piece.fichier.isEmpty()
                   ? zip_source_buffer_create(piece.octets.constData(), taille, 0, erreur.ici())
                   : zip_source_file_create(QFile::encodeName(piece.fichier).constData(), 0, -1, erreur.ici());
    };
    Zip::Source source(ouvrir());
    if (!source)
        refuser(piece.nom, erreur.ici());
    return source;
}

// Pictures that are drawings shrink, the others are packed already.
bool seComprime(const Bagage::Piece &piece)
{
    return piece.fichier.isEmpty() || piece.nom.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive)
           || piece.nom.endsWith(QLatin1String(".bmp"), Qt::CaseInsensitive);
}

// The same bytes for the same content, whenever and wherever it is packed.
void ajouter(zip_t *archive, const Bagage::Piece &piece)
{
    constexpr zip_uint16_t premierJour = 0x21; // 1st January 1980, as early as a zip can tell
    constexpr zip_uint32_t fichierOrdinaire = 0100644U << 16U;
    Zip::Source contenu = source(piece);
    const zip_int64_t rang = zip_file_add(archive, piece.nom.toUtf8().constData(), contenu.get(), ZIP_FL_ENC_UTF_8);
    if (rang < 0)
        refuser(piece.nom, zip_get_error(archive));
    static_cast<void>(contenu.release()); // the archive's, from now on
    const auto numero = static_cast<zip_uint64_t>(rang);
    zip_set_file_compression(archive, numero, seComprime(piece) ? ZIP_CM_DEFLATE : ZIP_CM_STORE, 0);
    zip_file_set_dostime(archive, numero, 0, premierJour, 0);
    zip_file_set_external_attributes(archive, numero, 0, ZIP_OPSYS_UNIX, fichierOrdinaire);
}

// What reading would refuse.
void exigerLisible(const Bagage &bagage)
{
    qint64 octets = 0;
    for (const Bagage::Piece &piece : bagage.pieces)
        octets += piece.taille;
    if (octets > PiecesDArchive::total)
        throw Echec(QStringLiteral("Une archive ne peut pas contenir tout cela : les couvertures sont trop lourdes."));
    if (bagage.pieces.size() > PiecesDArchive::nombre)
        throw Echec(QStringLiteral("Une archive ne peut pas contenir tout cela : il y a trop de fichiers."));
}

// `nom`: what the user calls it.
void composer(const QString &chemin, const QString &nom, const Bagage &bagage)
{
    int code = 0;
    Zip::Archive archive(zip_open(QFile::encodeName(chemin).constData(), ZIP_CREATE | ZIP_TRUNCATE, &code));
    if (!archive)
        refuser(nom, Zip::Erreur(code).ici());
    for (const Bagage::Piece &piece : bagage.pieces)
        ajouter(archive.get(), piece);
    if (zip_close(archive.get()) != 0)
        refuser(nom, zip_get_error(archive.get()));
    static_cast<void>(archive.release());
}

} // namespace

void Archive::ecrire(const QString &chemin, const Bagage &bagage)
{
    exigerLisible(bagage);
    const QString provisoire = chemin + u'.' + QUuid::createUuid().toString(QUuid::Id128).first(8);
    try {
        composer(provisoire, chemin, bagage);
        Disque::synchroniser(provisoire);
        Disque::remplacer(provisoire, chemin);
    } catch (...) {
        QFile::remove(provisoire);
        throw;
    }
}

} // namespace Quillet
