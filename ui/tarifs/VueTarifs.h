#pragma once

#include "textes/TextesTarifs.h"

#include <QWidget>

class Catalogue;
class ChoixTarifs;
class Commande;
class EnTete;
class JourCourant;
class LigneVerification;
class QVBoxLayout;
class Verifications;

// The schedule in force or the next one, PayPal's fees, and the two weekly checks.
class VueTarifs : public QWidget
{
    Q_OBJECT

public:
    VueTarifs(Catalogue &catalogue, const Commande &commande, Verifications &verifications, const JourCourant &jour,
              QWidget *parent = nullptr);

protected:
    void showEvent(QShowEvent *evenement) override;

private:
    QWidget *controles();
    void actualiser();

    Catalogue &catalogue_;
    const Commande &commande_;
    Verifications &verifications_;
    const JourCourant &jour_;
    EnTete *enTete_;
    ChoixTarifs *choix_;
    LigneVerification *laPoste_;
    LigneVerification *paypal_;
    QVBoxLayout *sections_ = nullptr;
    QWidget *tableaux_ = nullptr;
    QList<TextesTarifs::Famille> familles_; // as shown
    QList<TextesTarifs::Frais> frais_;      // the same
};
