// SPDX-License-Identifier: MIT
#pragma once

#include "base/BackgroundQueue.h"
#include "templates/ui/IKBTmplStyleItem.h"

#include <memory>
#include <QAbstractListModel>
#include <QSize>
#include <vector>

namespace leafcast {

/// The styles of a template, with pictures that come one after the other: reading them does not
/// keep the window waiting.
class StyleGalleryModel : public QAbstractListModel {
    Q_OBJECT

public:
    /// Of a picture in the gallery, as wide as three beside each other allow.
    static constexpr QSize pictureSize{ 224, 140 };

    explicit StyleGalleryModel(QObject* parent = nullptr);

    void reloadStylesForTmpl(const QString& tmplName);
    const std::vector<IKBTmplStyleItem>& items() const { return iTmplStylesData; }
    /// -1 for none.
    int rowOf(const QString& styleName) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

private:
    void readPictures();
    QIcon iconAt(int row) const;

    std::vector<IKBTmplStyleItem> iTmplStylesData;
    int iGeneration = 0; // what was read for an earlier template is dropped
    BackgroundQueue iQueue;
};

} // namespace leafcast
