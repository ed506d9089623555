// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

class QStyleOptionButton;
class QStyleOptionMenuItem;
class QStyleOptionProgressBar;
class QStyleOptionViewItem;

namespace leafcast {

/// The look of the controls on every desktop: Fusion with flat surfaces, round corners, the main
/// button in the palette's accent colour, slim scroll bars and a clear ring around what has the
/// focus. Every colour comes from the palette.
class CalmStyle : public QProxyStyle {
    Q_OBJECT

public:
    CalmStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
        const QWidget* widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
        const QWidget* widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
        QPainter* painter, const QWidget* widget = nullptr) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
        const QWidget* widget = nullptr) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option,
        const QWidget* widget = nullptr) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
        const QWidget* widget = nullptr) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option = nullptr,
        const QWidget* widget = nullptr) const override;
    int styleHint(StyleHint hint, const QStyleOption* option = nullptr,
        const QWidget* widget = nullptr, QStyleHintReturn* answer = nullptr) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option = nullptr,
        const QWidget* widget = nullptr) const override;

private:
    void drawItemPanel(
        const QStyleOptionViewItem& option, QPainter& painter, const QWidget* widget) const;
    void drawMenuBarItem(const QStyleOptionMenuItem& option, QPainter& painter) const;
    void drawProgress(
        const QStyleOptionProgressBar& option, QPainter& painter, const QWidget* widget) const;
    void drawButtonLabel(
        const QStyleOptionButton& option, QPainter& painter, const QWidget* widget) const;
};

} // namespace leafcast
