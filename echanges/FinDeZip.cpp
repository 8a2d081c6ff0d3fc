#include "echanges/FinDeZip.h"

#include "echanges/PiecesDArchive.h"
#include "model/CauseSysteme.h"
#include "model/Fichier.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

namespace Quillet {

namespace {

// A record that ends a zip: a comment of at most 65,535 bytes may follow it.
constexpr qsizetype longueur = 22;
constexpr qsizetype commentaire = 65'535;
constexpr qsizetype placeDeLaListe = 12;   // where the record says how many bytes the list of entries takes
constexpr qsizetype longueurDuRenvoi = 20; // of what stands before it and points to a second one, of a giant
const QByteArray signature = QByteArrayLiteral("PK\x05\x06");
const QByteArray geant = QByteArrayLiteral("PK\x06\x07");
// More than the longest names that one meets.
constexpr qint64 listeMaximale = PiecesDArchive::nombre * 500;

[[noreturn]] void refuser(const QString &raison)
{
    throw Echec(QStringLiteral("Cette archive ne peut pas être reprise : %1.").arg(raison));
}

QByteArray fin(const QString &chemin)
{
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::ReadOnly))
        throw ErreurStockage(chemin, CauseSysteme::enFrancais(fichier.errorString()));
    fichier.seek(qMax<qint64>(0, fichier.size() - longueurDuRenvoi - longueur - commentaire));
    return fichier.readAll();
}

} // namespace

void FinDeZip::verifier(const QString &chemin)
{
    if (const QFileInfo info(chemin); info.exists() && !info.isFile()) // a pipe could be waited for without end
        refuser(QStringLiteral("ce n’est pas un fichier ordinaire"));
    if (Fichier::excede(chemin, PiecesDArchive::total + listeMaximale))
        refuser(QStringLiteral("elle est trop grosse"));
    const QByteArray octets = fin(chemin);
    qsizetype place = octets.indexOf(signature);
    if (place < 0)
        refuser(QStringLiteral("ce n’est pas une archive zip, ou elle est incomplète"));
    for (; place >= 0 && place + longueur <= octets.size(); place = octets.indexOf(signature, place + 1)) {
        const auto liste = qFromLittleEndian<quint32>(octets.constData() + place + placeDeLaListe);
        if (liste > listeMaximale || octets.first(place).last(qMin(place, longueurDuRenvoi)).startsWith(geant))
            refuser(QStringLiteral("elle contient trop de fichiers"));
    }
}

} // namespace Quillet
