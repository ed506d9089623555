// SPDX-License-Identifier: MIT
#pragma once

#include "pdf/ChildProcess.h"
#include "pdf/LineChannel.h"
#include "pdf/PDFServiceAnswer.h"
#include "pdf/PDFServiceLimits.h"

#include <chrono>
#include <optional>

namespace leafcast {

/// One running program of the PDF service. Whatever goes wrong between it and us (it dies, passes
/// the deadline, says what is no answer) ends it; it can then be started anew. One thread, but for
/// stop().
class PDFServiceProcess {
public:
    /// None when it runs, else why not.
    std::optional<PDFServiceAnswer> start(const PDFServiceLimits& limits);
    /// It runs and waits for a request.
    bool isReady() const { return iChannel.isIdle(); }

    /// Sends the request, an object without its id, and waits for the answer.
    PDFServiceAnswer ask(const QJsonObject& request, std::chrono::seconds limit);

    /// Ends it; it can be started anew.
    ChildProcess::Ending end();

    /// Ends it, and with it the request under way, for good. Any thread.
    void stop() { iChild.stop(); }

private:
    std::optional<PDFServiceAnswer> parsed(const QByteArray& line) const;
    PDFServiceAnswer failed(LineChannel::Result result, std::chrono::seconds limit);
    PDFServiceAnswer died();

    ChildProcess iChild;
    LineChannel iChannel;
    qint64 iRequestId = 0;
    bool iHasAnswered = false;
};

} // namespace leafcast
