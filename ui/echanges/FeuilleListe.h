#pragma once

#include "composants/Feuille.h"
#include "echanges/ListeDeLivres.h"

class QPushButton;

namespace Quillet {

class AlerteRelecture;
class Libelle;
class RangeesDeListe;
struct Contexte;

// A list of books before it is taken: its columns, then what would become of each book. Taking it is one gesture, which
// the history can undo.
class FeuilleListe : public Feuille
{
    Q_OBJECT

public:
    // `octets`: what `liste` was read from.
    FeuilleListe(const Contexte &contexte, const QByteArray &octets, const ListeDeLivres &liste, QWidget *parent);

private:
    void montrer();
    void relire();
    void prendre();
    [[nodiscard]] QString pasLesVotres() const;

    const Contexte &contexte_;
    QByteArray octets_;
    ListeDeLivres liste_;
    Libelle *resume_;
    Libelle *colonnes_;
    RangeesDeListe *rangees_;
    AlerteRelecture *erreur_;
    QPushButton *prendre_;
};

} // namespace Quillet
