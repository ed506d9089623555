// SPDX-License-Identifier: MIT
#include "templates/ui/FlashTmplListCell.h"

#include "templates/FlashTemplateProperty.h"
#include "templates/ui/CellStyle.h"

#include <QComboBox>
#include <QPainter>
#include <QTimer>

namespace leafcast {

namespace {

    constexpr int arrowSize = 16;

} // namespace

FlashTmplListCell::FlashTmplListCell(FlashTemplateProperty& pro)
    : FlashTmplCell(pro)
    , iItems(pro.valueSource().split(u','))
    , iSelected(iItems.size() > 1 && iItems.contains(pro.value()) ? 1 : -1)
{
}

void FlashTmplListCell::show(const FlashTemplateProperty& item)
{
    iSelected = static_cast<int>(iItems.indexOf(item.value()));
}

QString FlashTmplListCell::shownText() const
{
    return title().trimmed();
}

QRect FlashTmplListCell::infoButtonRect(const QStyleOptionViewItem& option) const
{
    return option.rect;
}

QRect FlashTmplListCell::textRect(const QStyleOptionViewItem& option) const
{
    return CellStyle::placed(option, FlashTmplCell::textRect(option).adjusted(0, 0, -arrowSize, 0));
}

void FlashTmplListCell::draw(QPainter& painter, const QStyleOptionViewItem& option) const
{
    drawText(painter, option, Qt::ElideRight);
    const QRect row = option.rect;
    const QRect arrow(
        row.right() - arrowSize - 4, row.center().y() - arrowSize / 2, arrowSize, arrowSize);
    const auto place
        = CellStyle::controlOption<QStyleOption>(option, CellStyle::placed(option, arrow));
    CellStyle::of(option).drawPrimitive(
        QStyle::PE_IndicatorArrowDown, &place, &painter, option.widget);
}

QWidget* FlashTmplListCell::createEditor(QWidget* parent) const
{
    auto* box = new QComboBox(parent);
    for (const QString& item : iItems)
        box->addItem(item.trimmed());
    QTimer::singleShot(0, box, &QComboBox::showPopup);
    return box;
}

void FlashTmplListCell::showInEditor(QWidget& editor) const
{
    static_cast<QComboBox&>(editor).setCurrentIndex(iSelected);
}

QVariant FlashTmplListCell::objectOfEditor(const QWidget& editor) const
{
    const int chosen = static_cast<const QComboBox&>(editor).currentIndex();
    return chosen < 0 ? QVariant() : QVariant(chosen);
}

} // namespace leafcast
