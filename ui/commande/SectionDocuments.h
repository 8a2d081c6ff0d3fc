#pragma once

#include "composants/Formulaire.h"
#include "ui/documents/OngletDocuments.h"

class QPushButton;

namespace Quillet {

struct Calcul;

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

} // namespace Quillet
