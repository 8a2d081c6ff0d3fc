#pragma once

#include "composants/Libelle.h"

namespace Quillet {

// A short text of figures, all of one width, which keeps to the right: amounts one above the other line up.
class LibelleChiffre : public Libelle
{
    Q_OBJECT

public:
    explicit LibelleChiffre(const QString &texte = {}, Rang rang = Rang::principal, QWidget *parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *evenement) override;
};

} // namespace Quillet
