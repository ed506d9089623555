// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QString>

namespace leafcast {

/// One style in the gallery of the template chooser.
class IKBTmplStyleItem {
public:
    /// image: null without a picture. imageID: full path of the style's "shot.jpg", there or not.
    IKBTmplStyleItem(QImage image, QString imageID, QString styleName)
        : iImage(std::move(image))
        , iImageID(std::move(imageID))
        , iStyleName(std::move(styleName))
    {
    }

    const QString& imageUID() const { return iImageID; }
    const QImage& imageRepresentation() const { return iImage; }
    const QString& imageTitle() const { return iStyleName; }
    void setImage(QImage image) { iImage = std::move(image); }

private:
    QImage iImage;
    QString iImageID;
    QString iStyleName;
};

} // namespace leafcast
