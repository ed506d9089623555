// SPDX-License-Identifier: MIT
#include "templates/ui/TemplateListModel.h"

#include "templates/FlashTemplate.h"

#include <QFileInfo>
#include <QIcon>

using namespace Qt::StringLiterals;

namespace leafcast {

void TemplateListModel::reloadTmplList()
{
    beginResetModel();
    iTmplListData = FlashTemplate::tmplNames();
    endResetModel();
}

QString TemplateListModel::tmplNameAt(int row) const
{
    return QFileInfo(iTmplListData.at(row)).fileName();
}

QString TemplateListModel::tmplIconFileAt(int row) const
{
    return iTmplListData.at(row) + u"/icon.png"_s;
}

int TemplateListModel::rowOf(const QString& tmplName) const
{
    for (int row = rowCount() - 1; row >= 0; --row)
        if (tmplNameAt(row).toUpper() == tmplName.toUpper())
            return row;
    return -1;
}

int TemplateListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(iTmplListData.size());
}

QVariant TemplateListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return tmplNameAt(index.row());
    case Qt::DecorationRole:
        return QIcon(tmplIconFileAt(index.row()));
    case IsTemplateRole:
        return QFileInfo(iTmplListData.at(index.row()) + u"/flashTemplate.xml"_s).isFile();
    default:
        return {};
    }
}

bool TemplatesOnly::filterAcceptsRow(int row, const QModelIndex& parent) const
{
    return sourceModel()->index(row, 0, parent).data(TemplateListModel::IsTemplateRole).toBool();
}

} // namespace leafcast
