#pragma once

#include "composants/Feuille.h"
#include "echanges/Copies.h"

namespace Quillet {

struct Contexte;

// The states that were kept, the latest first, each with what differs from now, and shown before it is taken.
class FeuilleCopies : public Feuille
{
    Q_OBJECT

public:
    // `echec`: why the last one of the day could not be kept; empty when it could.
    FeuilleCopies(const Contexte &contexte, const QString &echec, QWidget *parent);

private:
    struct Vue
    {
        Copie copie;
        QString resume;
        bool lisible = true;
    };
    QList<Vue> lire();
    QWidget *rangee(const Vue &vue);
    void montrer(const Copie &copie);

    const Contexte &contexte_;
};

} // namespace Quillet
