// SPDX-License-Identifier: MIT
#pragma once

#include "publish/ReaderPages.h"

namespace leafcast {

/// The file "files/search/book.js" of a book. A PDF's text is read once: what was written is kept
/// beside the page source's pictures, and an output of the same pages copies it. Failures are
/// logged.
class ReaderDataFile {
public:
    explicit ReaderDataFile(const QString& path)
        : iPath(path)
    {
    }

    /// False, with no file left, after a failure or a stop.
    bool write(const ReaderBook& book) const;
    /// With its folder, when nothing else lies there.
    void remove() const;

private:
    bool place(const ReaderBook& book) const;

    QString iPath;
};

} // namespace leafcast
