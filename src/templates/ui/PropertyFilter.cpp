// SPDX-License-Identifier: MIT
#include "templates/ui/PropertyFilter.h"

#include "templates/ui/FlashTemplateOutlineDelegate.h"
#include "templates/ui/TemplateText.h"

#include <algorithm>

namespace leafcast {

PropertyFilter::PropertyFilter(QObject* parent)
    : QSortFilterProxyModel(parent)
{
    setRecursiveFilteringEnabled(true);
    setAutoAcceptChildRows(true);
}

void PropertyFilter::setWords(const QString& typed)
{
    iWords = typed.simplified().split(u' ', Qt::SkipEmptyParts);
    invalidateFilter();
}

bool PropertyFilter::filterAcceptsRow(int row, const QModelIndex& parent) const
{
    const auto* property
        = FlashTemplateOutlineDelegate::propertyAt(sourceModel()->index(row, 0, parent));
    if (!property)
        return false;
    const QString text = QStringList{ TemplateText::of(property->title()),
        TemplateText::of(property->aTitle()), TemplateText::of(property->desc()), property->key() }
                             .join(u'\n');
    return std::ranges::all_of(
        iWords, [&text](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
}

} // namespace leafcast
