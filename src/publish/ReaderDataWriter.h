// SPDX-License-Identifier: MIT
#pragma once

#include "publish/ReaderData.h"

#include <QIODevice>

namespace leafcast {

/// Writes reader data as one script line, page by page, so that a long book's text is never in
/// memory as a whole. Texts are escaped so that none can end its string, its script element or its
/// line. Errors stay in the device.
class ReaderDataWriter {
public:
    /// The device is open for writing and outlives the writer.
    explicit ReaderDataWriter(QIODevice& device);

    void addPage(const ReaderPage& page);
    void finish(const std::vector<ReaderOutlineItem>& outline);

    /// The outline as the file holds it.
    static QByteArray outlineText(const std::vector<ReaderOutlineItem>& outline);

private:
    QIODevice& iDevice;
    bool iHasPages = false;
};

} // namespace leafcast
