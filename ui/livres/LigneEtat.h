#pragma once

#include "composants/Libelle.h"
#include "model/PrixBouton.h"

namespace Quillet {

// The state of a PayPal button, in words behind its symbol.
class LigneEtat : public Libelle
{
    Q_OBJECT

public:
    explicit LigneEtat(QWidget *parent = nullptr);
    // Once it is known whether the focus may come here: its ring needs room.
    void montrer(PrixBouton::Etat etat, const QString &enMots);

protected:
    void paintEvent(QPaintEvent *evenement) override;

private:
    void placer();

    PrixBouton::Etat etat_ = PrixBouton::Etat::sansPrix;
};

} // namespace Quillet
