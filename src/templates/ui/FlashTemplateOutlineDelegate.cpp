// SPDX-License-Identifier: MIT
#include "templates/ui/FlashTemplateOutlineDelegate.h"

#include "base/NotificationCenter.h"
#include "templates/TemplateNotifications.h"
#include "templates/ui/FlashTmplCell.h"
#include "templates/ui/ProblemMark.h"
#include "templates/ui/PropertyProblem.h"
#include "templates/ui/TemplateText.h"

#include <algorithm>
#include <QFont>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    QString identifierOf(int column)
    {
        return column == FlashTemplateOutlineDelegate::KeyColumn ? u"key"_s : u"value"_s;
    }

    /// The whole of what may be cut off in the row, or what is wrong with it.
    QString toolTipOf(const FlashTemplateProperty& property, const FlashTmplCell& cell)
    {
        const QString problem = propertyProblem(property);
        if (problem.isEmpty())
            return cell.shownText();
        return FlashTemplateOutlineDelegate::tr("Can't be used: %1").arg(problem);
    }

    QFont boldFont()
    {
        QFont font;
        font.setBold(true);
        return font;
    }

} // namespace

FlashTemplateOutlineDelegate::FlashTemplateOutlineDelegate(QObject* parent)
    : QAbstractItemModel(parent)
{
    connect(&iEdits, &PropertyEdits::valueChanged, this,
        [this](const FlashTemplateProperty* property) { announceChange(*property); });
}

void FlashTemplateOutlineDelegate::setFlashTmpl(std::shared_ptr<FlashTemplate> flashTmpl)
{
    iFlashTmpl = std::move(flashTmpl);
    reloadData();
}

void FlashTemplateOutlineDelegate::reloadData()
{
    const auto properties = iFlashTmpl ? iFlashTmpl->properties() : FlashTemplateProperties();
    iDefaults = iFlashTmpl ? PropertyDefaults(*iFlashTmpl) : PropertyDefaults();
    if (!properties.empty() && properties == iShown) {
        announceAll({});
        return;
    }
    beginResetModel();
    iEdits.clear();
    iShown = properties;
    endResetModel();
}

void FlashTemplateOutlineDelegate::announceAll(const QModelIndex& parent)
{
    const int rows = rowCount(parent);
    if (rows == 0)
        return;
    Q_EMIT dataChanged(index(0, KeyColumn, parent), index(rows - 1, ValueColumn, parent));
    for (int row = 0; row < rows; ++row)
        announceAll(index(row, KeyColumn, parent));
}

void FlashTemplateOutlineDelegate::announceChange(const FlashTemplateProperty& property)
{
    Q_EMIT dataChanged(indexOf(property, KeyColumn), indexOf(property, ValueColumn));
}

void FlashTemplateOutlineDelegate::outlineViewSelectionDidChange()
{
    NotificationCenter::defaultCenter().post(UpdateFlashTmplProTipNotification,
        { { notificationObject, QVariant::fromValue<QObject*>(this) } });
}

FlashTemplateProperty* FlashTemplateOutlineDelegate::propertyAt(const QModelIndex& index)
{
    return qvariant_cast<FlashTemplateProperty*>(index.data(PropertyRole));
}

QModelIndex FlashTemplateOutlineDelegate::indexOf(
    const FlashTemplateProperty& item, Column column) const
{
    const FlashTemplateProperties& siblings = childrenOf(item.parent());
    const auto found
        = std::ranges::find(siblings, &item, &std::shared_ptr<FlashTemplateProperty>::get);
    if (found == siblings.end())
        return {};
    return createIndex(static_cast<int>(found - siblings.begin()), column, found->get());
}

QModelIndex FlashTemplateOutlineDelegate::index(
    int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, childOfItem(row, propertyAt(parent)));
}

QModelIndex FlashTemplateOutlineDelegate::parent(const QModelIndex& child) const
{
    const auto* property = propertyAt(child);
    return property && property->parent() ? indexOf(*property->parent(), KeyColumn) : QModelIndex();
}

int FlashTemplateOutlineDelegate::rowCount(const QModelIndex& parent) const
{
    return parent.column() > KeyColumn ? 0 : numberOfChildrenOfItem(propertyAt(parent));
}

int FlashTemplateOutlineDelegate::columnCount(const QModelIndex&) const
{
    return ColumnCount;
}

QVariant FlashTemplateOutlineDelegate::data(const QModelIndex& index, int role) const
{
    auto* property = static_cast<FlashTemplateProperty*>(index.internalPointer());
    if (!property)
        return {};
    switch (role) {
    case PropertyRole:
        return QVariant::fromValue(property);
    case Qt::EditRole:
        return objectValueForTableColumn(identifierOf(index.column()), *property);
    case Qt::FontRole:
        return isChanged(*property) ? QVariant(boldFont()) : QVariant();
    case Qt::AccessibleDescriptionRole:
        return property->desc();
    default:
        break;
    }
    if (index.column() == ValueColumn)
        return valueData(*property, role);
    const bool isTitle = role == Qt::DisplayRole || role == Qt::ToolTipRole;
    return isTitle ? TemplateText::of(objectValueForTableColumn(u"key"_s, *property).toString())
                   : QVariant();
}

QVariant FlashTemplateOutlineDelegate::valueData(FlashTemplateProperty& property, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        return displayCell(property)->shownText();
    case Qt::CheckStateRole:
        if (property.propertyType() == pt_bool)
            return valueAsBool(property.value()) ? Qt::Checked : Qt::Unchecked;
        return {};
    case Qt::ToolTipRole:
        return toolTipOf(property, *displayCell(property));
    case Qt::ForegroundRole:
        return propertyProblem(property).isEmpty() ? QVariant() : ProblemMark::color();
    default:
        return {};
    }
}

bool FlashTemplateOutlineDelegate::setData(
    const QModelIndex& index, const QVariant& value, int role)
{
    auto* property = propertyAt(index);
    const bool isEdit = role == Qt::EditRole || role == Qt::CheckStateRole;
    return property && isEdit && setObjectValue(value, identifierOf(index.column()), *property);
}

QVariant FlashTemplateOutlineDelegate::headerData(
    int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == KeyColumn ? tr("Setting") : tr("Value");
}

Qt::ItemFlags FlashTemplateOutlineDelegate::flags(const QModelIndex& index) const
{
    const auto* property = propertyAt(index);
    Qt::ItemFlags flags = QAbstractItemModel::flags(index);
    if (!property || index.column() != ValueColumn)
        return flags;
    if (property->propertyType() == pt_bool)
        return flags | Qt::ItemIsUserCheckable;
    // A group has a value like any other property, but none that does anything.
    return property->propertyType() == pt_composite ? flags : flags | Qt::ItemIsEditable;
}

} // namespace leafcast
