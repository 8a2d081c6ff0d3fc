#pragma once

#include "composants/Formulaire.h"
#include "ui/documents/OngletDocuments.h"

struct Calcul;
class QPushButton;

// What goes with the parcel.
class SectionDocuments : public Formulaire::Section
{
    Q_OBJECT

public:
    explicit SectionDocuments(QWidget *parent = nullptr);
    void montrer(const Calcul &calcul);

signals:
    void demandes(OngletDocuments onglet);

private:
    QPushButton *douane_;
    QPushButton *facture_;
};
