#pragma once

#include "composants/LibelleChiffre.h"

namespace Quillet {

class Ressort;

// A short text of digits, all of one width; when it changes, the characters that differ roll over.
class NombreRoulant : public LibelleChiffre
{
    Q_OBJECT

public:
    explicit NombreRoulant(QWidget *parent = nullptr);

    // `sens` is 1 when the number grows (digits roll upward), -1 when it shrinks.
    // `dit` is spoken in its place.
    void afficher(const QString &texte, int sens = 1, const QString &dit = {});

protected:
    void paintEvent(QPaintEvent *evenement) override;

private:
    QString precedent_;
    int sens_ = 1;
    Ressort *progres_;
};

} // namespace Quillet
