// SPDX-License-Identifier: MIT
#pragma once

#include "publish/ReaderData.h"

#include <QByteArrayList>
#include <QStringList>

namespace leafcast {

/// Writes the files of reader data into a folder: the texts of a few pages at a time, so that a
/// long book's text is never in memory as a whole, and "book.js" at the end. A book without text
/// has no text files. Each file appears whole or not at all; failures are logged.
class ReaderDataWriter {
public:
    /// Of a text file, unless one page alone has more: readers load the text of what they see, and
    /// a page's own picture is seldom smaller.
    static constexpr qsizetype mostTextBytes = 48 * 1024;
    static constexpr QLatin1StringView bookFileName{ "book.js" };

    /// The folder exists.
    explicit ReaderDataWriter(const QString& folder)
        : iFolder(folder)
    {
    }

    void addPage(const ReaderPage& page);
    /// False when a file could not be written.
    bool finish(const std::vector<ReaderOutlineItem>& outline);

    bool isWhole() const { return iIsWhole; }
    /// Names of the text files that were written.
    const QStringList& textFiles() const { return iTextFiles; }

private:
    void writeTexts();
    void write(const QString& name, const QByteArray& bytes);

    QString iFolder;
    QByteArrayList iPages;
    QByteArrayList iTexts; // of the pages whose text is not written yet
    qsizetype iTextBytes = 0; // of all of these
    std::vector<int> iTextStarts; // the first place of each text file
    QStringList iTextFiles;
    bool iHasText = false;
    bool iIsWhole = true;
};

} // namespace leafcast
