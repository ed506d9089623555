// SPDX-License-Identifier: MIT
#pragma once

#include <QSortFilterProxyModel>
#include <QStringList>

namespace leafcast {

/// Leaves the properties that the typed words all occur in (title, caption, description or key, in
/// any letter case), the groups above them, and all below a group that is a hit itself.
class PropertyFilter : public QSortFilterProxyModel {
    Q_OBJECT

public:
    explicit PropertyFilter(QObject* parent = nullptr);

    void setWords(const QString& typed);

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    QStringList iWords;
};

} // namespace leafcast
