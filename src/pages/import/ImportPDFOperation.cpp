// SPDX-License-Identifier: MIT
#include "pages/import/ImportPDFOperation.h"

#include "base/Log.h"
#include "links/FlashOutlinePDF.h"
#include "links/FlashPagesAnnotationsPDF.h"

#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace leafcast {

ImportPDFOperation::ImportPDFOperation(const QString& path, const QString& pageRange, qint32 DPI,
    qint32 quality, const PDFImportOptions& options)
    : iDPI(DPI)
    , iQuality(quality)
    , iPDFPath(path)
    , iPageRange(pageRange)
    , iOptions(options)
{
}

void ImportPDFOperation::main()
{
    const auto finish = qScopeGuard([this] { iFinished = true; });
    if (isCancelled())
        return;
    importPages();
    if (!isCancelled() && iImportLinks)
        importPageLinks();
    if (!isCancelled() && iImportBookmarks)
        importOutline();
    if (!isCancelled())
        return;
    LOG_DEBUG("ImportPDFOperation", u"import pdf is cancelled"_s);
    dropResults();
}

void ImportPDFOperation::cancel()
{
    const std::lock_guard guard(iSourceMutex);
    if (iFlashPageSource)
        iFlashPageSource->setStop(true);
    iCancelled = true;
}

std::optional<QString> ImportPDFOperation::guarded(
    const QString& step, const std::function<void()>& work)
{
    try {
        work();
        return std::nullopt;
    } catch (const std::exception& exception) {
        const QString reason = QString::fromUtf8(exception.what());
        LOG_ERROR("ImportPDFOperation",
            u"Run Import PDF Operation error,import %1:%2"_s.arg(step, reason));
        return reason;
    }
}

void ImportPDFOperation::importPages()
{
    const auto problem = guarded(u"pages"_s, [this] {
        const auto source
            = std::make_shared<FlashPageSourcePDF>(iPDFPath, iPageRange, iDPI, iQuality, iOptions);
        setFlashPageSource(source);
        LOG_DEBUG("ImportPDFOperation", u"before generate pages"_s);
        source->generatePages();
        LOG_DEBUG("ImportPDFOperation", u"after generate pages"_s);
        LOG_DEBUG("ImportPDFOperation", u"before generateNormalPages"_s);
        source->generateNormalPages();
        LOG_DEBUG("ImportPDFOperation", u"after generateNormalPages"_s);
    });
    if (!problem)
        return;
    iPagesProblem = *problem;
    setFlashPageSource(nullptr);
}

void ImportPDFOperation::importPageLinks()
{
    const auto annotations = std::make_shared<FlashPagesAnnotationsPDF>();
    iFlashPagesAnnotation = annotations;
    const auto problem
        = guarded(u"links"_s, [&] { annotations->loadLinksFromPDF(document(), iPageRange); });
    if (problem)
        iFlashPagesAnnotation.reset();
}

void ImportPDFOperation::importOutline()
{
    const auto outline = std::make_shared<FlashOutlinePDF>();
    iFlashOutline = outline;
    const auto problem
        = guarded(u"outline"_s, [&] { outline->loadOutlineFromPDF(document().get()); });
    if (problem)
        iFlashOutline.reset();
}

void ImportPDFOperation::dropResults()
{
    setFlashPageSource(nullptr);
    iFlashOutline.reset();
    iFlashPagesAnnotation.reset();
}

/// A cancel that came while the document was being opened reaches the source here.
void ImportPDFOperation::setFlashPageSource(std::shared_ptr<FlashPageSourcePDF> source)
{
    const std::lock_guard guard(iSourceMutex);
    iFlashPageSource.swap(source);
    if (iFlashPageSource && iCancelled)
        iFlashPageSource->setStop(true);
}

std::shared_ptr<const PDFDocument> ImportPDFOperation::document() const
{
    return iFlashPageSource ? iFlashPageSource->toPageConverter()->PDFDoc() : nullptr;
}

} // namespace leafcast
