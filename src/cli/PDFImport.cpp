// SPDX-License-Identifier: MIT
#include "cli/PDFImport.h"

#include "base/NotificationCenter.h"
#include "cli/Command.h"
#include "cli/ProgressBar.h"
#include "cli/WatchedWork.h"
#include "pages/import/ImportPDFOperation.h"
#include "pages/ImportNotifications.h"

#include <atomic>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    constexpr qint32 importDPI = 144;

    // The worker thread counts, the main thread shows.
    class ImportProgress {
    public:
        explicit ImportProgress(ProgressBar& bar)
            : iBar(bar)
            , iRegistration(NotificationCenter::defaultCenter().addObserver(ImportProgressInfoMSG,
                  [this](const Notification& notification) { count(notification); }))
        {
        }

        void show()
        {
            if (iTotal > 0)
                iBar.show(iDone, iTotal);
        }

    private:
        void count(const Notification& notification)
        {
            if (notification.userInfo[u"type"_s] != u"geneatePage"_s)
                return;
            iDone = notification.userInfo[u"pageIndex"_s].toInt();
            iTotal = notification.userInfo[u"totalPage"_s].toInt();
        }

        ProgressBar& iBar;
        std::atomic<int> iDone = 0;
        std::atomic<int> iTotal = 0;
        NotificationCenter::Registration iRegistration;
    };

} // namespace

PageInput importPDF(const PublishOptions& options, const std::shared_ptr<PDFDocument>& document)
{
    const PDFImportOptions importOptions{
        .limits = options.limits, .workers = options.jobs, .opened = document
    };
    ImportPDFOperation operation(options.inputs().constFirst(), fromArgument(options.pages),
        importDPI, options.quality(), importOptions);
    operation.setImportLinks(!options.noLinks);
    operation.setImportBookmarks(!options.noOutline);

    ProgressBar bar(u"pages"_s,
        options.quiet ? ProgressBar::Visibility::Never : ProgressBar::Visibility::WhenTerminal);
    ImportProgress progress(bar);
    WatchedWork{
        [&] { operation.main(); }, [&] { progress.show(); }, [&] { operation.cancel(); }
    }.run();
    bar.clear();

    if (operation.isCancelled())
        throw CommandFailure(ExitCode::Interrupted, u"interrupted; nothing was written"_s);
    if (!operation.flashPageSource())
        throw CommandFailure(ExitCode::InputUnreadable,
            u"the pages of %1 can't be imported"_s.arg(options.inputs().constFirst()));
    return { operation.flashPageSource(), operation.flashPagesAnnotation(),
        operation.flashOutline(), {}, 0, 0 };
}

} // namespace leafcast
