#pragma once

#include "model/Calcul.h"
#include "ui/commun/Formulaire.h"

class QPushButton;

// What goes with the parcel.
class SectionDocuments : public Formulaire::Section
{
    Q_OBJECT

public:
    explicit SectionDocuments(QWidget *parent = nullptr);
    void montrer(const Calcul &calcul);

signals:
    void douaneDemandee();
    void factureDemandee();

private:
    QPushButton *douane_;
    QPushButton *facture_;
};
