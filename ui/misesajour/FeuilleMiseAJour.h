#pragma once

#include "composants/Feuille.h"

class QProgressBar;
class QPushButton;

namespace Quillet {

class Alerte;
class Libelle;
class MisesAJour;
class ZoneDeTexte;

// Looks for updates as soon as it opens, says what is new, fetches it on demand. Closing it gives up what is under way.
class FeuilleMiseAJour : public Feuille
{
    Q_OBJECT

public:
    FeuilleMiseAJour(MisesAJour &misesAJour, QWidget *parent);

private:
    void actualiser();
    void retirer();

    MisesAJour &misesAJour_;
    Libelle *titre_;
    Libelle *detail_;
    QProgressBar *progres_;
    ZoneDeTexte *notes_;
    Alerte *alerte_;
    QPushButton *retrait_;
    QPushButton *action_;
};

} // namespace Quillet
