// SPDX-License-Identifier: MIT
#include "templates/ui/FlashTemplateOutlineDelegate.h"

#include "base/Log.h"
#include "templates/ui/FlashTmplColorCell.h"
#include "templates/ui/FlashTmplFileCell.h"
#include "templates/ui/FlashTmplListCell.h"
#include "templates/ui/FlashTmplSwitchCell.h"
#include "templates/ui/TemplateText.h"

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    void collectChanges(const FlashTemplateProperties& properties, const PropertyDefaults& defaults,
        std::vector<PropertyChange>& changes)
    {
        for (const auto& property : properties) {
            if (defaults.isChanged(*property))
                changes.push_back(
                    { property.get(), property->value(), defaults.valueOf(*property) });
            collectChanges(property->childProperties(), defaults, changes);
        }
    }

    std::unique_ptr<FlashTmplCell> colorCell(FlashTemplateProperty& item)
    {
        auto cell = std::make_unique<FlashTmplColorCell>(item);
        cell->setColor(colorFromHexRGB(item.value()));
        return cell;
    }

} // namespace

const FlashTemplateProperties& FlashTemplateOutlineDelegate::childrenOf(
    const FlashTemplateProperty* item) const
{
    return item ? item->childProperties() : iShown;
}

int FlashTemplateOutlineDelegate::numberOfChildrenOfItem(const FlashTemplateProperty* item) const
{
    return static_cast<int>(childrenOf(item).size());
}

FlashTemplateProperty* FlashTemplateOutlineDelegate::childOfItem(
    int index, const FlashTemplateProperty* item) const
{
    return childrenOf(item).at(static_cast<size_t>(index)).get();
}

bool FlashTemplateOutlineDelegate::isItemExpandable(const FlashTemplateProperty* item) const
{
    return item && item->childCount() > 0;
}

QVariant FlashTemplateOutlineDelegate::objectValueForTableColumn(
    const QString& column, const FlashTemplateProperty& item) const
{
    if (column.isEmpty() || column == u"key")
        return item.title().isNull() ? tr("(Untitled)") : item.title();
    if (column != u"value")
        return {};
    switch (item.propertyType()) {
    case pt_file:
        // Deliberately no path: the cell gets it for display, this only stands in for an object.
        return u"go go bay,hello world....just ok"_s;
    case pt_bool:
        return valueAsBool(item.value()) ? 1 : 0;
    default:
        return item.value().isNull() ? tr("(Unknown)") : item.value();
    }
}

std::unique_ptr<FlashTmplCell> FlashTemplateOutlineDelegate::dataCellForTableColumn(
    const QString& column, FlashTemplateProperty& item) const
{
    if (column == u"value") {
        switch (item.propertyType()) {
        case pt_color:
            return colorCell(item);
        case pt_list:
            return std::make_unique<FlashTmplListCell>(item);
        case pt_file:
            return std::make_unique<FlashTmplFileCell>(item);
        case pt_bool:
            return std::make_unique<FlashTmplSwitchCell>(item);
        default:
            break;
        }
    }
    auto cell = std::make_unique<FlashTmplCell>(item);
    cell->setTitle(objectValueForTableColumn(column, item).toString());
    return cell;
}

void FlashTemplateOutlineDelegate::willDisplayCell(
    FlashTmplCell& cell, const QString& column, const FlashTemplateProperty& item) const
{
    if (column == u"value")
        cell.show(item);
}

std::unique_ptr<FlashTmplCell> FlashTemplateOutlineDelegate::displayCell(
    FlashTemplateProperty& item) const
{
    auto cell = dataCellForTableColumn(u"value"_s, item);
    willDisplayCell(*cell, u"value"_s, item);
    return cell;
}

QString FlashTemplateOutlineDelegate::textFromObject(
    const FlashTemplateProperty& item, const QVariant& object)
{
    switch (item.propertyType()) {
    case pt_color:
        LOG_DEBUG("FlashTemplateOutlineDelegate", u"color value is:%1"_s.arg(object.toString()));
        return object.toString();
    case pt_list:
        return object.isValid() ? item.valueSource().split(u',').value(object.toInt()) : QString();
    case pt_bool:
        return object.toBool() ? u"YES"_s : u"NO"_s;
    default:
        return object.toString();
    }
}

bool FlashTemplateOutlineDelegate::setObjectValue(
    const QVariant& object, const QString& column, FlashTemplateProperty& item)
{
    if (column != u"value")
        return false;
    const QString text = textFromObject(item, object);
    return !text.isNull() && iEdits.setValue(item, text);
}

FlashTemplateOutlineDelegate::OpenPanel FlashTemplateOutlineDelegate::onSelectFile(
    const FlashTmplFileCell& cell) const
{
    return { cell.title(), FlashTmplFileCell::fileTypes(cell.pro().valueSource()) };
}

void FlashTemplateOutlineDelegate::openPanelDidEnd(
    FlashTmplFileCell& cell, const std::optional<QString>& chosenFile)
{
    LOG_DEBUG("FlashTemplateOutlineDelegate", u"die end,%1"_s.arg(chosenFile.value_or(u""_s)));
    cell.setFileName2(chosenFile.value_or(u""_s));
    LOG_DEBUG("FlashTemplateOutlineDelegate", u"title is:%1"_s.arg(cell.title()));
    setObjectValue(cell.title(), u"value"_s, cell.pro());
}

RGBColor FlashTemplateOutlineDelegate::onSelectColor(const FlashTmplColorCell& cell) const
{
    LOG_DEBUG("FlashTemplateOutlineDelegate", u"Seleting color now"_s);
    return cell.color();
}

void FlashTemplateOutlineDelegate::colorPanelDidClose(
    FlashTmplColorCell& cell, const RGBColor& color)
{
    cell.setColor2(color);
    setObjectValue(cell.title(), u"value"_s, cell.pro());
}

bool FlashTemplateOutlineDelegate::isChanged(const FlashTemplateProperty& item) const
{
    return iDefaults.isChanged(item);
}

bool FlashTemplateOutlineDelegate::hasChanges() const
{
    return !changesToDefaults().empty();
}

std::vector<PropertyChange> FlashTemplateOutlineDelegate::changesToDefaults() const
{
    std::vector<PropertyChange> changes;
    collectChanges(iShown, iDefaults, changes);
    return changes;
}

void FlashTemplateOutlineDelegate::resetToDefault(FlashTemplateProperty& item)
{
    if (isChanged(item))
        iEdits.setValues(tr("Reset of “%1”").arg(TemplateText::of(item.title())),
            { { &item, item.value(), iDefaults.valueOf(item) } });
}

void FlashTemplateOutlineDelegate::resetAllToDefaults()
{
    iEdits.setValues(tr("Reset of All Settings"), changesToDefaults());
}

} // namespace leafcast
