// SPDX-License-Identifier: MIT
#include "templates/ui/PropertyChooser.h"

#include "templates/ui/FlashTemplateOutlineDelegate.h"
#include "templates/ui/FlashTmplColorCell.h"
#include "templates/ui/FlashTmplFileCell.h"
#include "templates/ui/TemplateText.h"

#include <QColorDialog>
#include <QFileDialog>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    FlashTemplatePropertyType typeAt(const QModelIndex& index)
    {
        const auto* property = FlashTemplateOutlineDelegate::propertyAt(index);
        return property ? property->propertyType() : pt_text;
    }

    QColor toQColor(const RGBColor& color)
    {
        return QColor::fromRgbF(color.red, color.green, color.blue);
    }

    RGBColor fromQColor(const QColor& color)
    {
        const QColor rgb = color.toRgb();
        return { rgb.redF(), rgb.greenF(), rgb.blueF(), 1 };
    }

} // namespace

PropertyChooser::PropertyChooser(FlashTemplateOutlineDelegate& outline, QWidget& window)
    : QObject(&window)
    , iOutline(outline)
    , iWindow(window)
{
}

bool PropertyChooser::canChoose(const QModelIndex& index)
{
    return typeAt(index) == pt_color || typeAt(index) == pt_file;
}

bool PropertyChooser::canClearFile(const QModelIndex& index)
{
    return typeAt(index) == pt_file
        && !FlashTemplateOutlineDelegate::propertyAt(index)->value().isEmpty();
}

void PropertyChooser::choose(const QPersistentModelIndex& index)
{
    if (typeAt(index) == pt_color)
        chooseColor(index);
    else if (typeAt(index) == pt_file)
        chooseFile(index);
}

void PropertyChooser::chooseColor(const QPersistentModelIndex& index)
{
    auto& property = *FlashTemplateOutlineDelegate::propertyAt(index);
    const auto cell = iOutline.dataCellForTableColumn(u"value"_s, property);
    const RGBColor color = iOutline.onSelectColor(static_cast<FlashTmplColorCell&>(*cell));
    auto* dialog = new QColorDialog(&iWindow);
    dialog->setObjectName(u"colorDialog"_s);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(TemplateText::of(property.title()));
    dialog->setCurrentColor(toQColor(color));
    connect(dialog, &QColorDialog::colorSelected, this, [this, index](const QColor& chosen) {
        if (auto* chosenFor = FlashTemplateOutlineDelegate::propertyAt(index)) {
            FlashTmplColorCell edited(*chosenFor);
            iOutline.colorPanelDidClose(edited, fromQColor(chosen));
        }
    });
    dialog->open();
}

void PropertyChooser::chooseFile(const QPersistentModelIndex& index)
{
    auto& property = *FlashTemplateOutlineDelegate::propertyAt(index);
    const auto panel = iOutline.onSelectFile(FlashTmplFileCell(property));
    auto* dialog = new QFileDialog(&iWindow, TemplateText::of(property.title()));
    dialog->setObjectName(u"fileDialog"_s);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilters(
        FlashTmplFileCell::dialogFilters(panel.fileTypes, property.valueSource()));
    if (!panel.proposedFile.isEmpty())
        dialog->selectFile(panel.proposedFile);
    connect(dialog, &QFileDialog::fileSelected, this, [this, index](const QString& path) {
        if (auto* chosenFor = FlashTemplateOutlineDelegate::propertyAt(index)) {
            FlashTmplFileCell edited(*chosenFor);
            iOutline.openPanelDidEnd(edited, path);
        }
    });
    dialog->open();
}

void PropertyChooser::clearFile(const QModelIndex& index)
{
    if (!canClearFile(index))
        return;
    FlashTmplFileCell cell(*FlashTemplateOutlineDelegate::propertyAt(index));
    iOutline.openPanelDidEnd(cell, std::nullopt);
}

} // namespace leafcast
