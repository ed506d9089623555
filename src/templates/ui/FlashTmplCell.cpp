// SPDX-License-Identifier: MIT
#include "templates/ui/FlashTmplCell.h"

#include "templates/FlashTemplateProperty.h"
#include "templates/PropertyValueCheck.h"
#include "templates/ui/CellStyle.h"

#include <QLineEdit>
#include <QPainter>

namespace leafcast {

namespace {

    constexpr int textMargin = 4;

} // namespace

FlashTmplCell::FlashTmplCell(FlashTemplateProperty& pro)
    : iPro(pro)
    , iTitle(pro.value())
{
}

QRect FlashTmplCell::infoButtonRect(const QStyleOptionViewItem&) const
{
    return {};
}

QRect FlashTmplCell::textRect(const QStyleOptionViewItem& option) const
{
    return option.rect.adjusted(textMargin, 0, -textMargin, 0);
}

void FlashTmplCell::draw(QPainter& painter, const QStyleOptionViewItem& option) const
{
    drawText(painter, option, Qt::ElideRight);
}

void FlashTmplCell::drawText(
    QPainter& painter, const QStyleOptionViewItem& option, Qt::TextElideMode elide) const
{
    const QRect rect = textRect(option);
    const QString text = option.fontMetrics.elidedText(shownText(), elide, rect.width());
    const auto alignment = static_cast<int>(
        QStyle::visualAlignment(option.direction, Qt::AlignLeft | Qt::AlignVCenter));
    painter.setFont(option.font);
    CellStyle::of(option).drawItemText(&painter, rect, alignment, CellStyle::palette(option), true,
        text, CellStyle::textRole(option));
}

QWidget* FlashTmplCell::createEditor(QWidget* parent) const
{
    auto* editor = new QLineEdit(parent);
    editor->setFrame(false);
    editor->setAutoFillBackground(true);
    return editor;
}

void FlashTmplCell::showInEditor(QWidget& editor) const
{
    static_cast<QLineEdit&>(editor).setText(editedText());
}

QVariant FlashTmplCell::objectOfEditor(const QWidget& editor) const
{
    const QString typed = static_cast<const QLineEdit&>(editor).text();
    const PropertyValueCheck check = checkPropertyValue(iPro, normalized(typed));
    return check.isAccepted() ? QVariant(check.value) : QVariant();
}

QString FlashTmplCell::problemOfEditor(const QWidget& editor) const
{
    const QString typed = static_cast<const QLineEdit&>(editor).text();
    return checkPropertyValue(iPro, normalized(typed)).problem;
}

QString FlashTmplCell::editedText() const
{
    return iPro.value();
}

} // namespace leafcast
