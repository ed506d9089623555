// SPDX-License-Identifier: MIT
#pragma once

#include "publish/ReaderPages.h"

#include <QStringList>

namespace leafcast {

/// The files of reader data in a book's folder "files/search": "book.js", and "text-1.js",
/// "text-2.js" and so on when the book has text. A PDF's text is read once: what was written is
/// kept beside the page source's pictures, and an output of the same pages copies it: of two at the
/// same time one waits for the other. Other files in the folder are nobody's business here.
/// Failures are logged.
class ReaderDataFiles {
public:
    explicit ReaderDataFiles(const QString& folder)
        : iFolder(folder)
    {
    }

    /// False, with none of the files left, after a failure or a stop. Text files of an earlier,
    /// longer book go.
    bool write(const ReaderBook& book) const;
    /// With their folder, when nothing else lies there.
    void remove() const;

    QString bookFile() const;
    /// Full paths of "book.js" and of the text files that are there.
    QStringList paths() const;

private:
    bool place(const ReaderBook& book) const;
    bool make(const ReaderBook& book) const;
    bool copyFrom(const ReaderDataFiles& kept) const;
    QStringList textFiles() const;
    void removeTextFilesBut(const QStringList& names) const;
    QString path(const QString& name) const { return iFolder + u'/' + name; }

    QString iFolder;
};

} // namespace leafcast
