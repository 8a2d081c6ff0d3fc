#pragma once

#include "model/Fichier.h"
#include "watch/Appcast.h"
#include "watch/Transfert.h"

#include <QCryptographicHash>
#include <QDir>
#include <QTemporaryFile>

namespace Quillet {

// Fetches the package of an update. It gets its name in the folder only once its length and its digest are those of the
// feed, which is signed; whatever else happens, giving up included, nothing of it stays on the disk.
class TelechargementPaquet : public QObject
{
    Q_OBJECT

public:
    // The folder is this program's own, made when needed and emptied of earlier packages.
    TelechargementPaquet(Appcast::Parution parution, const QDir &dossier);

    // To be called once. `pret` or `echoue` follows, never before this returns; whoever hears it may destroy this
    // object. Throws ErreurStockage.
    void commencer();

signals:
    void progresse(qint64 octets);     // not a place to destroy this object
    void pret(const QString &chemin);  // the file stays
    void echoue(const QString &texte); // a sentence for the user

private:
    void ecrire(const QByteArray &morceau);
    void conclure(const QByteArray &codage);
    // Throws Echec.
    QString garder(const QByteArray &codage);
    [[nodiscard]] ErreurStockage refusDuDisque() const;
    void refuser(const Echec &raison);

    Appcast::Parution parution_;
    QDir dossier_;
    QTemporaryFile fichier_;
    qint64 octets_ = 0;
    QCryptographicHash empreinte_{QCryptographicHash::Sha256}; // of what came so far: no wait at the end
    QString refus_; // the sentence that ended the transfer from here; empty when none did
    Transfert transfert_;
};

} // namespace Quillet
