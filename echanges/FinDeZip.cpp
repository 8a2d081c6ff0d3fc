#include "echanges/FinDeZip.h"

#include "model/CauseSysteme.h"
#include "model/Fichier.h"

#include <QFile>
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

QByteArray fin(const QString &chemin)
{
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::ReadOnly))
        throw ErreurStockage(chemin, CauseSysteme::enFrancais(fichier.errorString()));
    fichier.seek(qMax<qint64>(0, fichier.size() - longueurDuRenvoi - longueur - commentaire));
    return fichier.readAll();
}

} // namespace

bool FinDeZip::annonceTrop(const QString &chemin)
{
    const QByteArray octets = fin(chemin);
    for (qsizetype place = octets.indexOf(signature); place >= 0 && place + longueur <= octets.size();
         place = octets.indexOf(signature, place + 1)) {
        const auto liste = qFromLittleEndian<quint32>(octets.constData() + place + placeDeLaListe);
        if (liste > listeMaximale || octets.first(place).last(qMin(place, longueurDuRenvoi)).startsWith(geant))
            return true;
    }
    return false;
}

} // namespace Quillet
