#include "model/Fichier.h"

#include "model/CauseSysteme.h"

#include <QDir>
#include <QSaveFile>

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

// QSaveFile words the refusal of an existing file itself; opening that file says what the system holds against it.
QString raisonDuRefus(const QSaveFile &fichier)
{
    QFile existant(fichier.fileName());
    if (existant.exists() && !existant.open(QIODevice::ReadWrite))
        return CauseSysteme::enFrancais(existant.errorString());
    return CauseSysteme::enFrancais(fichier.errorString());
}

} // namespace

ErreurStockage::ErreurStockage(const QString &chemin, const QString &raison)
    : Echec(QStringLiteral("%1 : %2").arg(QDir::toNativeSeparators(chemin), raison))
{
}

void Fichier::ecrire(const QString &chemin, const QByteArray &octets)
{
    QSaveFile fichier(chemin);
    if (!fichier.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        throw ErreurStockage(chemin, raisonDuRefus(fichier));
    if (!toutEcrire(fichier, octets) || !fichier.commit())
        throw ErreurStockage(chemin, CauseSysteme::enFrancais(fichier.errorString()));
}
