#pragma once

#include "model/Langue.h"
#include "ui/commun/ChoixSegmente.h"

// The language in which the buyer is answered.
class ChoixLangue : public ChoixSegmente
{
    Q_OBJECT

public:
    explicit ChoixLangue(QWidget *parent = nullptr);
    void montrer(Langue langue);

signals:
    void choisie(Langue langue);
};
