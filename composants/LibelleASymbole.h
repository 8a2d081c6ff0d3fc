#pragma once

#include "composants/Libelle.h"

namespace Quillet {

// A callout that wraps, behind a symbol on its first line.
class LibelleASymbole : public Libelle
{
    Q_OBJECT

public:
    using Couleur = QColor (*)(const QPalette &);

    // `cote`: of the symbol, for text of 10 pt; `espace`: px, between both.
    LibelleASymbole(int cote, int espace, QWidget *parent = nullptr);
    // Before it shows, and once it is known whether the focus may come here: its ring needs room.
    void setSymbole(const QString &symbole, Couleur couleur);

protected:
    void paintEvent(QPaintEvent *evenement) override;

private:
    void placer();

    int cote_;
    int espace_;
    QString symbole_;
    Couleur couleur_;
};

} // namespace Quillet
