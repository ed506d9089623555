// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <QString>

namespace leafcast {

/// One page of a book: a picture file and the page's number. The file is not the page's own; copies
/// share it.
class FlashPage {
public:
    FlashPage() = default;
    FlashPage(const QString& pageFilePath, qint32 pageIndex)
        : iPageFilePath(pageFilePath)
        , iPageIndex(pageIndex)
    {
    }
    virtual ~FlashPage() = default;

    /// Absolute; there need not be a file.
    const QString& pageFilePath() const { return iPageFilePath; }
    void setPageFilePath(const QString& path) { iPageFilePath = path; }

    /// Number from 1: of the page in its PDF, or of the image in the order of adding. Not a
    /// position in a list.
    qint32 pageIndex() const { return iPageIndex; }
    void setPageIndex(qint32 number) { iPageIndex = number; }

    /// Both arguments are ignored; callers pass 100.
    virtual std::shared_ptr<FlashPage> copyPage(qint32 size, qint32 quality) const;

private:
    QString iPageFilePath;
    qint32 iPageIndex = 0;
};

} // namespace leafcast
