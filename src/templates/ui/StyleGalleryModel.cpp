// SPDX-License-Identifier: MIT
#include "templates/ui/StyleGalleryModel.h"

#include "templates/FlashTemplate.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QIcon>
#include <QPainter>
#include <QPalette>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    QImage readPicture(const QString& path)
    {
        const QImage whole(path);
        // Twice as many pixels as it is large, for screens that have them.
        return whole.isNull() ? whole
                              : whole.scaled(StyleGalleryModel::pictureSize * 2,
                                  Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    }

    /// Calm paper in place of a picture that there is not.
    QPixmap placeholder()
    {
        QPixmap pixmap(StyleGalleryModel::pictureSize);
        pixmap.fill(QGuiApplication::palette().color(QPalette::AlternateBase));
        QPainter painter(&pixmap);
        painter.setPen(QGuiApplication::palette().color(QPalette::Mid));
        painter.drawRect(pixmap.rect().adjusted(0, 0, -1, -1));
        return pixmap;
    }

} // namespace

StyleGalleryModel::StyleGalleryModel(QObject* parent)
    : QAbstractListModel(parent)
{
}

void StyleGalleryModel::reloadStylesForTmpl(const QString& tmplName)
{
    beginResetModel();
    ++iGeneration;
    iTmplStylesData.clear();
    for (const QString& folder : FlashTemplate::tmplStyleNamesForTmpl(tmplName))
        iTmplStylesData.emplace_back(
            QImage(), folder + u"/shot.jpg"_s, QFileInfo(folder).fileName());
    endResetModel();
    readPictures();
}

void StyleGalleryModel::readPictures()
{
    for (int row = 0; row < rowCount(); ++row) {
        const auto picture = std::make_shared<QImage>();
        const QString path = iTmplStylesData[size_t(row)].imageUID();
        iQueue.add([picture, path] { *picture = readPicture(path); },
            [this, picture, row, generation = iGeneration] {
                if (generation != iGeneration)
                    return;
                iTmplStylesData[size_t(row)].setImage(*picture);
                Q_EMIT dataChanged(index(row), index(row), { Qt::DecorationRole });
            });
    }
}

int StyleGalleryModel::rowOf(const QString& styleName) const
{
    for (int row = 0; row < rowCount(); ++row)
        if (iTmplStylesData[size_t(row)].imageTitle() == styleName)
            return row;
    return -1;
}

int StyleGalleryModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(iTmplStylesData.size());
}

QVariant StyleGalleryModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const IKBTmplStyleItem& item = iTmplStylesData[size_t(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return item.imageTitle();
    case Qt::DecorationRole:
        return iconAt(index.row());
    default:
        return {};
    }
}

QIcon StyleGalleryModel::iconAt(int row) const
{
    const QImage& picture = iTmplStylesData[size_t(row)].imageRepresentation();
    return picture.isNull() ? QIcon(placeholder()) : QIcon(QPixmap::fromImage(picture));
}

} // namespace leafcast
