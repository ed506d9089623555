// SPDX-License-Identifier: MIT
#pragma once

#include "publish/ReaderPages.h"

namespace leafcast {

/// The file "files/search/book.js" of a book. A PDF's text is read once: what was written is kept
/// beside the page source's pictures, and an output of the same pages copies it. Failures, and the
/// page source's stop flag, are logged and leave no file.
class ReaderDataFile {
public:
    explicit ReaderDataFile(const QString& path)
        : iPath(path)
    {
    }

    void write(const ReaderBook& book) const;
    /// With its folder, when nothing else lies there.
    void remove() const;

private:
    bool place(const ReaderBook& book) const;

    QString iPath;
};

} // namespace leafcast
