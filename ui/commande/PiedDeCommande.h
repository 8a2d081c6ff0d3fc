#pragma once

#include "model/Calcul.h"
#include "model/Suivi.h"
#include "ui/commande/RangeeMontant.h"

class QPushButton;

namespace Quillet {

class LigneDuTotal;

// The foot of the summary, always in sight: what the order comes to, and the next thing to do with it.
class PiedDeCommande : public QWidget
{
    Q_OBJECT

public:
    explicit PiedDeCommande(QWidget *parent = nullptr);
    void montrer(const Calcul &calcul, Etape etape, Langue langue);
    // That the order was emptied, as long as it can be undone.
    void montrerVidee(bool videe);
    // The focus, once it is shown.
    void proposerDAnnuler();

signals:
    void etapeDemandee(Etape etape);
    void annulationDemandee();

protected:
    void paintEvent(QPaintEvent *evenement) override;

private:
    QPushButton *annuler_;
    QWidget *videe_;
    RangeeMontant envoi_;
    LigneDuTotal *total_;
    RangeeMontant reste_;
    QPushButton *suivante_;
    Etape etape_ = Etape::lien; // of the button
};

} // namespace Quillet
