// SPDX-License-Identifier: MIT
#pragma once

#include "publish/ReaderData.h"

#include <QByteArrayList>
#include <QStringList>

namespace leafcast {

/// Writes the files of reader data into a folder: the texts of so many pages at a time, so that a
/// long book's text is never in memory as a whole, and "book.js" at the end. A book without text
/// has no text files. Each file appears whole or not at all; failures are logged.
class ReaderDataWriter {
public:
    static constexpr int pagesInTextFile = 20;
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
    QStringList iTextFiles;
    bool iHasText = false;
    bool iIsWhole = true;
};

} // namespace leafcast
