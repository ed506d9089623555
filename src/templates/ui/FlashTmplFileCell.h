// SPDX-License-Identifier: MIT
#pragma once

#include "templates/ui/FlashTmplCell.h"

#include <QStringList>

namespace leafcast {

/// The path of a file and a button that opens the file dialog.
class FlashTmplFileCell : public FlashTmplCell {
public:
    using FlashTmplCell::FlashTmplCell;

    /// The file types of a filter such as "Images|*.jpg;*.png": what stands behind the first "|",
    /// if there is one, split at "*.", each ";" deleted. So a filter that begins with a pattern has
    /// an empty first type, and one without patterns is one type.
    static QStringList fileTypes(const QString& filter);
    /// File types in the form of QFileDialog, named by the filter that they are from, with one for
    /// all files behind them.
    static QStringList dialogFilters(const QStringList& fileTypes, const QString& filter);

    void setFileName2(const QString& path) { setTitle(path); }

    void show(const FlashTemplateProperty& item) override;
    QString shownText() const override;
    QRect infoButtonRect(const QStyleOptionViewItem& option) const override;
    QRect textRect(const QStyleOptionViewItem& option) const override;
    void draw(QPainter& painter, const QStyleOptionViewItem& option) const override;
};

} // namespace leafcast
