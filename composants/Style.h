#pragma once

#include "composants/bureau/Souhaits.h"

#include <QProxyStyle>

#include <optional>

namespace Quillet {

// Fusion with the colours and shapes of Theme: hairlines, rounded controls, a clear focus ring, slim scroll bars.
class Style : public QProxyStyle
{
    Q_OBJECT

public:
    // Without a mode, light or dark follows the desktop, also while the program runs.
    explicit Style(std::optional<Theme::Mode> mode = std::nullopt);

    // The colours of the whole program change at once; motion that is under way ends as it would.
    void suivre(const Souhaits &souhaits);

    using QProxyStyle::polish;
    void polish(QPalette &palette) override;
    void polish(QWidget *widget) override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *peintre,
                       const QWidget *widget) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *peintre,
                     const QWidget *widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption *option, const QWidget *widget) const override;
    void drawComplexControl(ComplexControl controle, const QStyleOptionComplex *option, QPainter *peintre,
                            const QWidget *widget) const override;
    QRect subControlRect(ComplexControl controle, const QStyleOptionComplex *option, SubControl partie,
                         const QWidget *widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contenu,
                           const QWidget *widget) const override;
    int pixelMetric(PixelMetric mesure, const QStyleOption *option, const QWidget *widget) const override;
    QIcon standardIcon(StandardPixmap symbole, const QStyleOption *option, const QWidget *widget) const override;
    int styleHint(StyleHint indice, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *retour) const override;

private:
    bool peindre(ControlElement element, const QStyleOption &option, QPainter &peintre, const QWidget *widget) const;

    std::optional<Theme::Mode> mode_;
    Souhaits souhaits_;
};

} // namespace Quillet
