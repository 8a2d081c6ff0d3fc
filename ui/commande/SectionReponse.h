#pragma once

#include "composants/Formulaire.h"

class QPushButton;

namespace Quillet {

struct Calcul;
class Commande;

// The way to the reply, in the buyer's language.
class SectionReponse : public Formulaire::Section
{
    Q_OBJECT

public:
    explicit SectionReponse(const Commande &commande, QWidget *parent = nullptr);
    void montrer(const Calcul &calcul);

signals:
    void demandee();

private:
    const Commande &commande_;
    QPushButton *ecrire_;
};

} // namespace Quillet
