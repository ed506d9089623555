// SPDX-License-Identifier: MIT
#pragma once

#include "pdf/PDFDocument.h"
#include "pdf/PDFServiceAnswer.h"

#include <condition_variable>
#include <functional>
#include <map>
#include <mutex>
#include <thread>
#include <vector>

namespace leafcast {

/// Sends a list of requests about one document to several workers of the PDF service and hands the
/// answers over in the order of the list. It runs ahead of what was taken by a limited number of
/// requests. A request that fails costs its own answer only. One thread takes; destruction kills
/// what is under way and waits for it.
class PDFServicePool {
public:
    /// The request at a position of the list; called on the threads of the workers.
    using RequestAt = std::function<QJsonObject(size_t position)>;

    /// workers 0: one a processor core; never more than there are requests.
    PDFServicePool(
        const PDFDocument::Source& source, size_t requestCount, RequestAt requestAt, int workers);
    ~PDFServicePool();

    bool atEnd() const { return iTaken == iRequestCount; }
    /// The next answer of the list, which is waited for. Not at the end.
    PDFServiceAnswer next();

private:
    void work(const std::stop_token& stop);
    bool claim(const std::stop_token& stop, size_t& position);
    void deliver(size_t position, PDFServiceAnswer answer);

    const PDFDocument::Source iSource;
    const size_t iRequestCount;
    const RequestAt iRequestAt;
    size_t iLookAhead = 0;

    std::mutex iMutex;
    std::condition_variable_any iRoomAhead;
    std::condition_variable iDelivered;
    size_t iClaimed = 0;
    size_t iTaken = 0;
    std::map<size_t, PDFServiceAnswer> iAnswers; // delivered, not taken
    std::vector<std::jthread> iThreads;
};

} // namespace leafcast
