// SPDX-License-Identifier: MIT
#include "pdf/PDFServicePool.h"

#include "pdf/PDFServiceWorker.h"

#include <algorithm>

namespace leafcast {

namespace {

    size_t workerCount(int asked, size_t requests)
    {
        const size_t cores = std::max(1U, std::thread::hardware_concurrency());
        return std::min(asked > 0 ? static_cast<size_t>(asked) : cores, requests);
    }

} // namespace

PDFServicePool::PDFServicePool(
    const PDFDocument::Source& source, size_t requestCount, RequestAt requestAt, int workers)
    : iSource(source)
    , iRequestCount(requestCount)
    , iRequestAt(std::move(requestAt))
{
    const size_t count = workerCount(workers, requestCount);
    iLookAhead = count * 2 + 2; // each worker has one to go on with while one answer is waited for
    for (size_t i = 0; i < count; ++i)
        iThreads.emplace_back([this](const std::stop_token& stop) { work(stop); });
}

PDFServicePool::~PDFServicePool()
{
    for (std::jthread& thread : iThreads)
        thread.request_stop();
}

PDFServiceAnswer PDFServicePool::next()
{
    std::unique_lock lock(iMutex);
    iDelivered.wait(lock, [this] { return iAnswers.contains(iTaken); });
    const auto answered = iAnswers.find(iTaken);
    PDFServiceAnswer answer = std::move(answered->second);
    iAnswers.erase(answered);
    ++iTaken;
    iRoomAhead.notify_one();
    return answer;
}

void PDFServicePool::work(const std::stop_token& stop)
{
    PDFServiceWorker worker(iSource);
    const std::stop_callback interrupt(stop, [&worker] { worker.stop(); });
    for (size_t position = 0; claim(stop, position);)
        deliver(position, worker.ask(iRequestAt(position)));
}

bool PDFServicePool::claim(const std::stop_token& stop, size_t& position)
{
    std::unique_lock lock(iMutex);
    iRoomAhead.wait(lock, stop,
        [this] { return iClaimed == iRequestCount || iClaimed <= iTaken + iLookAhead; });
    if (stop.stop_requested() || iClaimed == iRequestCount)
        return false;
    position = iClaimed++;
    if (iClaimed == iRequestCount)
        iRoomAhead.notify_all();
    return true;
}

void PDFServicePool::deliver(size_t position, PDFServiceAnswer answer)
{
    const std::lock_guard lock(iMutex);
    iAnswers.emplace(position, std::move(answer));
    iDelivered.notify_one();
}

} // namespace leafcast
