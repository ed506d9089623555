// SPDX-License-Identifier: MIT
#pragma once

#include "pdf/PDFImageRep.h"
#include "pdf/PDFServiceAnswer.h"

#include <QTemporaryDir>

namespace leafcast {

/// A hidden folder inside the work folder, in which the PDF service draws pictures before they get
/// their names: what a killed worker leaves half written lies in it too, and goes with it.
class HiddenPictures {
public:
    explicit HiddenPictures(const PDFImageRep::Options& options);

    bool isUsable() const { return iFolder.isValid(); }

    /// The request that draws the page as the picture of that number.
    QJsonObject renderRequest(int pageIndex, size_t number) const;

    /// Moves the picture that the answer tells of to path.
    RenderedPage moveTo(const QString& path, size_t number, const PDFServiceAnswer& answer) const;
    void drop(size_t number) const;

private:
    QString pathOf(size_t number) const;

    PDFImageRep::Options iOptions;
    QTemporaryDir iFolder;
};

} // namespace leafcast
