// SPDX-License-Identifier: MIT
#pragma once

#include "pages/FlashPageSourceImg.h"

#include <memory>
#include <QSize>
#include <QStringList>

namespace leafcast {

/// What became of image files that were to be a book's pages.
struct ImageImport {
    /// range: as of a PDF's pages, over the files in their order. Reads their headers; any thread.
    ImageImport(const QStringList& files, const QString& range);

    std::shared_ptr<FlashPageSourceImg> pageSource; // none when there is a problem
    QString problem; // a sentence without capital and full stop
    QSize pageSize; // of the first page, in points
};

} // namespace leafcast
