// SPDX-License-Identifier: MIT
#include "templates/ui/FlashTmplSwitchCell.h"

#include "templates/ColorCategory.h"
#include "templates/FlashTemplateProperty.h"
#include "templates/ui/CellStyle.h"
#include "templates/ui/TemplateText.h"

#include <algorithm>
#include <QCoreApplication>
#include <QStyleOptionButton>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    QStyleOptionButton checkBox(const FlashTmplSwitchCell& cell, const QStyleOptionViewItem& option)
    {
        auto box = CellStyle::controlOption<QStyleOptionButton>(option, cell.textRect(option));
        box.text = option.fontMetrics.elidedText(
            cell.caption(), Qt::ElideRight, std::max(0, box.rect.width() - 24));
        box.state |= cell.isOn() ? QStyle::State_On : QStyle::State_Off;
        box.palette.setColor(QPalette::WindowText, box.palette.color(CellStyle::textRole(option)));
        // A box in the colour of the selection would not be seen on a selected row.
        if (option.state & QStyle::State_Selected) {
            const QColor row = box.palette.color(QPalette::Highlight);
            box.palette.setColor(QPalette::Highlight, box.palette.color(QPalette::HighlightedText));
            box.palette.setColor(QPalette::HighlightedText, row);
        }
        return box;
    }

} // namespace

QString FlashTmplSwitchCell::caption() const
{
    return TemplateText::of(pro().aTitle());
}

void FlashTmplSwitchCell::show(const FlashTemplateProperty& item)
{
    iIsOn = valueAsBool(item.value());
}

QString FlashTmplSwitchCell::shownText() const
{
    const char* const state = iIsOn ? QT_TRANSLATE_NOOP("FlashTmplSwitchCell", "on")
                                    : QT_TRANSLATE_NOOP("FlashTmplSwitchCell", "off");
    const QString text = QCoreApplication::translate("FlashTmplSwitchCell", state);
    return caption().isEmpty() ? text : u"%1: %2"_s.arg(caption(), text);
}

QRect FlashTmplSwitchCell::infoButtonRect(const QStyleOptionViewItem& option) const
{
    const QStyleOptionButton box = checkBox(*this, option);
    return CellStyle::of(option).subElementRect(QStyle::SE_CheckBoxClickRect, &box, option.widget);
}

void FlashTmplSwitchCell::draw(QPainter& painter, const QStyleOptionViewItem& option) const
{
    QStyleOptionButton box = checkBox(*this, option);
    if (iMouseDownInInfoButton)
        box.state |= QStyle::State_Sunken;
    CellStyle::of(option).drawControl(QStyle::CE_CheckBox, &box, &painter, option.widget);
}

} // namespace leafcast
