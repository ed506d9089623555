// SPDX-License-Identifier: MIT
#include "app/Look.h"

#include "app/CalmStyle.h"

#include <gmock/gmock.h>
#include <QImage>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOption>

using namespace leafcast;
using namespace testing;

namespace {

// As the guidelines for accessible web content (WCAG 2.1) define it.
double luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
        + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other)
{
    const auto [dark, light] = std::minmax(luminance(one), luminance(other));
    return (light + 0.05) / (dark + 0.05);
}

class Palette : public TestWithParam<QPalette (*)()> {
protected:
    const QPalette palette = GetParam()();

    double between(QPalette::ColorRole text, QPalette::ColorRole surface,
        QPalette::ColorGroup group = QPalette::Active) const
    {
        return contrast(palette.color(group, text), palette.color(group, surface));
    }
};

TEST_P(Palette, letsAllTextBeRead)
{
    constexpr double readable = 4.5;
    for (const auto surface : { QPalette::Window, QPalette::Base, QPalette::Button }) {
        EXPECT_GE(between(QPalette::WindowText, surface), readable) << surface;
        EXPECT_GE(between(QPalette::PlaceholderText, surface), readable) << surface;
        EXPECT_GE(between(QPalette::Link, surface), readable) << surface;
        EXPECT_GE(between(QPalette::Text, surface, QPalette::Disabled), 3) << surface;
    }
    EXPECT_GE(between(QPalette::HighlightedText, QPalette::Highlight), readable);
}

TEST_P(Palette, letsTheFocusRingBeSeenOnEverySurface)
{
    for (const auto surface : { QPalette::Window, QPalette::Base, QPalette::Button })
        EXPECT_GE(between(QPalette::Highlight, surface), 3) << surface;
}

INSTANTIATE_TEST_SUITE_P(LightAndDark, Palette, Values(&lightPalette, &darkPalette));

QImage painted(const CalmStyle& style, QStyle::State state, bool isMain)
{
    QStyleOptionButton option;
    option.rect = { 0, 0, 80, 30 };
    option.palette = lightPalette();
    option.state = state;
    if (isMain)
        option.features = QStyleOptionButton::DefaultButton;
    QImage image(option.rect.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    style.drawPrimitive(QStyle::PE_PanelButtonCommand, &option, &painter);
    return image;
}

TEST(CalmStyle, tellsAButtonThatIsMainFocusedPressedOrDisabledFromOthers)
{
    const CalmStyle style;
    const auto enabled = QStyle::State_Enabled | QStyle::State_Raised;
    const auto focused = enabled | QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    for (const bool isMain : { false, true }) {
        const QImage plain = painted(style, enabled, isMain);
        EXPECT_NE(painted(style, focused, isMain), plain) << isMain;
        EXPECT_NE(painted(style, enabled | QStyle::State_Sunken, isMain), plain) << isMain;
        EXPECT_NE(painted(style, QStyle::State_Raised, isMain), plain) << isMain;
    }
    EXPECT_NE(painted(style, enabled, true), painted(style, enabled, false));
}

TEST(CalmStyle, letsTheHandleOfALongScrollBarReachBothEndsAndStayLargeEnough)
{
    const CalmStyle style;
    QStyleOptionSlider option;
    option.rect = { 0, 0, 12, 200 };
    option.orientation = Qt::Vertical;
    option.maximum = 1'000'000;
    option.pageStep = 100;
    const auto handle = [&](int position) {
        option.sliderPosition = position;
        return style.subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider);
    };
    EXPECT_EQ(handle(0).top(), 0);
    EXPECT_EQ(handle(option.maximum).bottom(), option.rect.bottom());
    EXPECT_GE(handle(500'000).height(), 24);
    const auto part = [&](QStyle::SubControl which) {
        return style.subControlRect(QStyle::CC_ScrollBar, &option, which);
    };
    EXPECT_EQ(part(QStyle::SC_ScrollBarSubPage).bottom() + 1, handle(500'000).top());
    EXPECT_EQ(part(QStyle::SC_ScrollBarAddPage).top() - 1, handle(500'000).bottom());
}

} // namespace
