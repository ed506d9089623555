// SPDX-License-Identifier: MIT
#include "cli/PDFImport.h"

#include "cli/Command.h"
#include "cli/Interrupt.h"
#include "cli/ShownProgress.h"
#include "cli/WatchedWork.h"
#include "pages/import/ImportPDFOperation.h"
#include "pages/ImportNotifications.h"
#include "pages/ImportSentences.h"

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    constexpr qint32 importDPI = 144;

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

    ProgressBar bar(u"pages"_s, options.progressVisibility());
    ShownProgress progress(bar, ImportProgressInfoMSG, u"geneatePage"_s);
    WatchedWork{
        [&] { operation.main(); }, [&] { progress.show(); }, [&] { operation.cancel(); }
    }.run();
    Interrupt::endIfRequested(u"nothing was written"_s);
    if (!operation.flashPageSource())
        throw CommandFailure(
            ExitCode::InputUnreadable, ImportSentences::notImported(options.inputs().constFirst()));
    return { operation.flashPageSource(), operation.flashPagesAnnotation(),
        operation.flashOutline(), {}, 0, 0 };
}

} // namespace leafcast
