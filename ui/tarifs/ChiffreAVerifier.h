#pragma once

#include "composants/LibelleChiffre.h"

namespace Quillet {

// A figure read of a page that should be looked at twice: behind a triangle, which is also heard.
class ChiffreAVerifier : public LibelleChiffre
{
    Q_OBJECT

public:
    explicit ChiffreAVerifier(const QString &texte);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *evenement) override;
};

} // namespace Quillet
