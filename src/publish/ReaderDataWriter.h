// SPDX-License-Identifier: MIT
#pragma once

#include "publish/ReaderData.h"

#include <QIODevice>

namespace leafcast {

/// Writes reader data as one script line, page by page, so that a long book's text is never in
/// memory as a whole. Texts are escaped so that none can end its string, its script element or its
/// line.
class ReaderDataWriter {
public:
    /// The device is open for writing and outlives the writer.
    explicit ReaderDataWriter(QIODevice& device);

    void addPage(const ReaderPage& page);
    void finish(const std::vector<ReaderOutlineItem>& outline);

    /// False when the device took less than it was given, which need not leave an error in it.
    bool isWhole() const { return iIsWhole; }

    /// The outline as the file holds it.
    static QByteArray outlineText(const std::vector<ReaderOutlineItem>& outline);

private:
    void write(const QByteArray& bytes);

    QIODevice& iDevice;
    bool iHasPages = false;
    bool iIsWhole = true;
};

} // namespace leafcast
