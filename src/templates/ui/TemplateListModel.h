// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractListModel>
#include <QSortFilterProxyModel>
#include <QStringList>

namespace leafcast {

/// The template chooser's list: a row for every folder of the template library, at every depth.
class TemplateListModel : public QAbstractListModel {
    Q_OBJECT

public:
    /// Whether the folder has a template's description file.
    static constexpr int IsTemplateRole = Qt::UserRole;

    using QAbstractListModel::QAbstractListModel;

    /// Reads the library anew.
    void reloadTmplList();
    const QStringList& paths() const { return iTmplListData; }
    QString tmplNameAt(int row) const;
    /// Path of the row's "icon.png", there or not.
    QString tmplIconFileAt(int row) const;
    /// The last row of that name in any letter case; -1 for none.
    int rowOf(const QString& tmplName) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

private:
    QStringList iTmplListData;
};

/// Shows the folders that are templates.
class TemplatesOnly : public QSortFilterProxyModel {
    Q_OBJECT

public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
};

} // namespace leafcast
