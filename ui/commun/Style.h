#pragma once

#include "ui/Theme.h"

#include <QProxyStyle>

#include <optional>

// Fusion with the colours and shapes of Theme: hairlines, rounded controls, a clear focus ring, slim scroll bars.
class Style : public QProxyStyle
{
    Q_OBJECT

public:
    // Without a mode, light or dark follows the platform's palette, also while the program runs.
    explicit Style(std::optional<Theme::Mode> mode = std::nullopt);

    using QProxyStyle::polish;
    void polish(QPalette &palette) override;
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
    std::optional<Theme::Mode> mode_;
};
