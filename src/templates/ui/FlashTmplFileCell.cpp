// SPDX-License-Identifier: MIT
#include "templates/ui/FlashTmplFileCell.h"

#include "templates/FlashTemplateProperty.h"
#include "templates/ui/CellStyle.h"

#include <QCoreApplication>
#include <QPainter>
#include <QStyleOptionButton>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    constexpr int buttonWidth = 22;
    constexpr int textLeft = 4;

    QString translated(const char* text)
    {
        return QCoreApplication::translate("FlashTmplFileCell", text);
    }

} // namespace

QStringList FlashTmplFileCell::fileTypes(const QString& filter)
{
    const QString text = QString(filter).remove(u';');
    const QStringList parts = text.split(u'|');
    return (parts.size() >= 2 ? parts[1] : text).split(u"*."_s);
}

QStringList FlashTmplFileCell::dialogFilters(const QStringList& fileTypes, const QString& filter)
{
    QStringList patterns;
    for (const QString& type : fileTypes)
        if (!type.trimmed().isEmpty())
            patterns.append(u"*."_s + type.trimmed());
    const QString allFiles = translated(QT_TRANSLATE_NOOP("FlashTmplFileCell", "All files (*)"));
    if (patterns.isEmpty())
        return { allFiles };
    const QString name = filter.contains(u'|')
        ? filter.section(u'|', 0, 0).trimmed()
        : translated(QT_TRANSLATE_NOOP("FlashTmplFileCell", "Files of this kind"));
    return { u"%1 (%2)"_s.arg(name, patterns.join(u' ')), allFiles };
}

void FlashTmplFileCell::show(const FlashTemplateProperty& item)
{
    setTitle(item.value());
}

QString FlashTmplFileCell::shownText() const
{
    return title().isEmpty() ? translated(QT_TRANSLATE_NOOP("FlashTmplFileCell", "No file"))
                             : title();
}

QRect FlashTmplFileCell::infoButtonRect(const QStyleOptionViewItem& option) const
{
    const QRect cell = option.rect;
    return CellStyle::placed(
        option, { cell.right() - buttonWidth, cell.top() + 2, buttonWidth, cell.height() - 4 });
}

QRect FlashTmplFileCell::textRect(const QStyleOptionViewItem& option) const
{
    return CellStyle::placed(option, option.rect.adjusted(textLeft, 0, -buttonWidth - 3, 0));
}

void FlashTmplFileCell::draw(QPainter& painter, const QStyleOptionViewItem& option) const
{
    // The end of a path tells more than its beginning.
    drawText(painter, option, Qt::ElideLeft);
    auto button = CellStyle::controlOption<QStyleOptionButton>(option, infoButtonRect(option));
    button.text = u"…"_s;
    button.state |= iMouseDownInInfoButton ? QStyle::State_Sunken : QStyle::State_Raised;
    if (option.state & QStyle::State_MouseOver)
        button.state |= QStyle::State_MouseOver;
    CellStyle::of(option).drawControl(QStyle::CE_PushButton, &button, &painter, option.widget);
}

} // namespace leafcast
