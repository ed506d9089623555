// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <QByteArray>
#include <QString>
#include <QStringList>
#include <vector>

namespace leafcast {

/// What a publication did; `--json` prints it.
struct PublishReport {
    struct MissingPage {
        int number = 0; // of the page in the PDF, from 1
        QString reason; // a clause, such as "it took longer than 30 s"
    };

    QString input;
    QString output; // the folder or the package
    QString page; // the file to open
    QString title; // plain text
    int pageCount = 0; // of the pages that the book has
    qint64 bytes = 0; // of the page pictures
    std::vector<MissingPage> missingPages;
    QStringList missingFiles; // of the book, relative to output
    QStringList warnings;
    struct Archive {
        QString path;
        qint64 bytes = 0;
        double seconds = 0;
    };

    std::optional<Archive> archive;
    double importSeconds = 0;
    double writeSeconds = 0;

    bool isComplete() const { return missingPages.empty() && missingFiles.isEmpty(); }
    /// Version 1 of the report's format.
    QByteArray asJson() const;
    double totalSeconds() const;
    /// "16 pages, 2.1 MB, in 1.3 s", and a line on the archive.
    QStringList summary() const;
    /// "pages 8-16 are missing: REASON"; pages in a row with one reason share a sentence.
    QStringList missingPageSentences() const;
};

} // namespace leafcast
