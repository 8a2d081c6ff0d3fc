#pragma once

#include "textes/TextesTarifs.h"
#include "ui/EcranDeRubrique.h"

class QBoxLayout;

namespace Quillet {

class ChoixTarifs;
class EnTete;
class LigneVerification;
struct Contexte;

// The schedule in force or the next one, PayPal's fees, and the two weekly checks.
class VueTarifs : public EcranDeRubrique
{
    Q_OBJECT

public:
    explicit VueTarifs(const Contexte &contexte, QWidget *parent = nullptr);

protected:
    void showEvent(QShowEvent *evenement) override;

private:
    QWidget *controles();
    void actualiser();

    const Contexte &contexte_;
    EnTete *enTete_;
    ChoixTarifs *choix_;
    LigneVerification *laPoste_;
    LigneVerification *paypal_;
    QBoxLayout *sections_ = nullptr;
    QWidget *tableaux_ = nullptr;
    QList<TextesTarifs::Famille> familles_; // as shown
    QList<TextesTarifs::Frais> frais_;      // the same
};

} // namespace Quillet
