#pragma once

#include "watch/ErreurReleve.h"
#include "watch/Transfert.h"

namespace Quillet {

// Fetches a public page as text, without waiting for it. Destroying it gives the download up at once, without a signal.
class Telechargement : public QObject
{
    Q_OBJECT

public:
    explicit Telechargement(const Limites &limites = {}, Transfert::Usage usage = Transfert::Usage::pagePublique);

    [[nodiscard]] bool enCours() const { return transfert_.enCours(); }
    // Exactly one of the signals follows, never before this returns; whoever hears it may ask for the next page or
    // destroy this object. Not to be called while `enCours`.
    void page(const QUrl &url) { transfert_.demander(url, "gzip"); }

signals:
    void lue(const QString &texte);
    void echouee(const ErreurReleve &erreur);

private:
    void conclure(const QByteArray &codage);

    qint64 taille_;
    QByteArray corps_;
    Transfert transfert_;
};

} // namespace Quillet
