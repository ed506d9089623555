// SPDX-License-Identifier: MIT
#include "app/Look.h"

#include "app/CalmStyle.h"

#include <QApplication>

namespace leafcast {

namespace {

    struct Colors {
        QRgb window;
        QRgb base;
        QRgb alternate;
        QRgb button;
        QRgb text;
        QRgb dimmed; // placeholders, and what is disabled
        QRgb edge;
        QRgb accent;
        QRgb onAccent;
        QRgb link;
    };

    // Paper and ink with the green of the icon.
    constexpr Colors light = { 0xfff4f3ef, 0xffffffff, 0xfffaf9f6, 0xfffbfaf7, 0xff24231f,
        0xff6b6961, 0xffcfccc2, 0xff2f7d4f, 0xffffffff, 0xff23683f };
    constexpr Colors dark = { 0xff25262a, 0xff1c1d20, 0xff222327, 0xff303237, 0xffe9e8e4,
        0xffa2a19b, 0xff45474d, 0xff3f9a65, 0xff0f1511, 0xff7fc79b };

    QPalette paletteOf(const Colors& colors)
    {
        QPalette palette;
        palette.setColor(QPalette::Window, colors.window);
        palette.setColor(QPalette::Base, colors.base);
        palette.setColor(QPalette::AlternateBase, colors.alternate);
        palette.setColor(QPalette::Button, colors.button);
        for (const auto role : { QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                 QPalette::ToolTipText, QPalette::BrightText })
            palette.setColor(role, colors.text);
        palette.setColor(QPalette::ToolTipBase, colors.base);
        palette.setColor(QPalette::PlaceholderText, colors.dimmed);
        palette.setColor(QPalette::Mid, colors.edge);
        palette.setColor(QPalette::Dark, colors.edge);
        palette.setColor(QPalette::Highlight, colors.accent);
        palette.setColor(QPalette::HighlightedText, colors.onAccent);
        palette.setColor(QPalette::Link, colors.link);
        palette.setColor(QPalette::LinkVisited, colors.link);
        for (const auto role : { QPalette::WindowText, QPalette::Text, QPalette::ButtonText })
            palette.setColor(QPalette::Disabled, role, colors.dimmed);
        palette.setColor(QPalette::Disabled, QPalette::Highlight, colors.edge);
        return palette;
    }

    bool isDark(const QPalette& palette)
    {
        return palette.color(QPalette::Window).lightness()
            < palette.color(QPalette::WindowText).lightness();
    }

} // namespace

QPalette lightPalette()
{
    return paletteOf(light);
}

QPalette darkPalette()
{
    return paletteOf(dark);
}

void applyLook(Appearance appearance)
{
    static const bool desktopIsDark = isDark(QApplication::palette());
    if (!qobject_cast<CalmStyle*>(QApplication::style()))
        QApplication::setStyle(new CalmStyle);
    const bool dark
        = appearance == Appearance::Dark || (appearance == Appearance::System && desktopIsDark);
    QApplication::setPalette(dark ? darkPalette() : lightPalette());
}

} // namespace leafcast
