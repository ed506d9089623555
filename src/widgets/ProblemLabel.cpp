// SPDX-License-Identifier: MIT
#include "widgets/ProblemLabel.h"

#include <algorithm>
#include <QAccessible>
#include <QEvent>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    constexpr QColor redOnLight(0xb3, 0x26, 0x1e);
    constexpr QColor redOnDark(0xff, 0x8a, 0x80);
    constexpr int halfLight = 128;

} // namespace

QColor problemColor(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < halfLight ? redOnDark : redOnLight;
}

QString asSentence(QString text)
{
    if (text.isEmpty())
        return text;
    const QString firstWord = text.section(u' ', 0, 0);
    if (std::ranges::all_of(firstWord, [](QChar c) { return c.isLetter(); }))
        text[0] = text.at(0).toUpper();
    return text.endsWith(u'.') || text.endsWith(u'?') ? text : text + u'.';
}

ProblemLabel::ProblemLabel(QWidget* parent)
    : QLabel(parent)
{
    setWordWrap(true);
    setTextFormat(Qt::PlainText); // file names may look like markup
    setTextInteractionFlags(Qt::TextSelectableByMouse);
}

void ProblemLabel::showNote(const QString& text)
{
    say(text, false);
}

void ProblemLabel::showProblem(const QString& text)
{
    say(asSentence(text), true);
    if (text.isEmpty())
        return;
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void ProblemLabel::say(const QString& text, bool isProblem)
{
    iIsProblem = isProblem;
    setText(text);
    setAccessibleName(text);
    takeColor();
    setVisible(!text.isEmpty());
}

void ProblemLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    const QColor red = problemColor(QGuiApplication::palette());
    if (event->type() == QEvent::PaletteChange && iIsProblem
        && palette().color(QPalette::WindowText) != red)
        takeColor();
}

void ProblemLabel::takeColor()
{
    QPalette colors; // whatever it does not set is as around the label
    if (iIsProblem)
        colors.setColor(QPalette::WindowText, problemColor(QGuiApplication::palette()));
    setPalette(colors);
}

} // namespace leafcast
