// SPDX-License-Identifier: MIT
#pragma once

#include "pdf/PDFDocument.h"
#include "pdf/PDFServiceProcess.h"

namespace leafcast {

/// One document in one process of the PDF service: started and opened at the first request, and
/// again after a request that ended it. A request is never repeated: what crashed the service once
/// would do so again. One thread, but for stop().
class PDFServiceWorker {
public:
    explicit PDFServiceWorker(const PDFDocument::Source& source);

    /// The answer to opening the document, which is tried only if there is none yet. Once the
    /// document can't be opened, that stays so.
    const PDFServiceAnswer& open();

    /// A request about the document; when it can't be opened, the answer to opening it.
    PDFServiceAnswer ask(const QJsonObject& request);

    /// Ends the request under way and every later one. Any thread.
    void stop() { iProcess.stop(); }

private:
    PDFServiceAnswer startAndOpen();
    std::chrono::seconds pageLimit() const;

    PDFDocument::Source iSource;
    PDFServiceProcess iProcess;
    PDFServiceAnswer iOpening;
    int iTriesLeft;
};

} // namespace leafcast
