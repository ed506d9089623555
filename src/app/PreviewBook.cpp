// SPDX-License-Identifier: MIT
#include "app/PreviewBook.h"

#include "base/Log.h"
#include "pages/FlashPageSourceCopy.h"
#include "publish/FlashBookOutput.h"
#include "publish/HTMLConfigInfo.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace leafcast {

class PreviewBook::Work {
public:
    Work(const Parts& parts, const QString& folder)
        : iPages(std::make_shared<FlashPageSourceCopy>(parts.pageSource))
        , iWriter(iPages, parts.flashTemplate->copy(), folder, u"index.html"_s)
    {
        const auto page = std::make_shared<HTMLConfigInfo>();
        page->setHTMLTitle(u"Preview"_s);
        iWriter.setHTMLConfig(page);
        iWriter.setFlashPagesAnnotations(parts.annotations);
        iWriter.setFlashOutline(parts.outline);
    }

    void run()
    {
        try {
            iWriter.ouputTheBook();
            iIsWritten = !iPages->stop();
        } catch (const std::exception& error) {
            LOG_ERROR("Leafcast_for_iPad_MacAppDelegate",
                u"apply change :%1"_s.arg(QString::fromUtf8(error.what())));
        }
    }

    void stop() { iPages->setStop(true); }
    bool isWritten() const { return iIsWritten; }
    QString page() const { return iWriter.outputFileName(); }

private:
    std::shared_ptr<FlashPageSourceCopy> iPages;
    FlashBookOutput iWriter;
    bool iIsWritten = false;
};

PreviewBook::~PreviewBook()
{
    stop();
}

void PreviewBook::stop()
{
    if (iCurrent)
        iCurrent->stop();
    iQueue.clear();
    iCurrent.reset();
    iNext.reset();
}

void PreviewBook::write(const Parts& parts, const QString& folder)
{
    auto work = std::make_shared<Work>(parts, folder);
    if (!iCurrent) {
        start(std::move(work));
        return;
    }
    iCurrent->stop();
    iQueue.letGo(std::exchange(iNext, std::move(work)));
}

void PreviewBook::start(std::shared_ptr<Work> work)
{
    iCurrent = work;
    iQueue.add([work] { work->run(); }, [this] { ended(); });
}

void PreviewBook::ended()
{
    std::shared_ptr<Work> last = std::move(iCurrent);
    const QString page = last->isWritten() ? last->page() : QString();
    iQueue.letGo(std::move(last));
    if (iNext)
        start(std::move(iNext));
    else if (!page.isEmpty())
        Q_EMIT written(page);
}

} // namespace leafcast
