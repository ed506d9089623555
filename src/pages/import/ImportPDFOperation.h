// SPDX-License-Identifier: MIT
#pragma once

#include "links/FlashOutline.h"
#include "links/FlashPagesAnnotations.h"
#include "pages/FlashPageSourcePDF.h"

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

namespace leafcast {

/// Imports one PDF: its pages and, when asked for, its links and its outline. main() runs once, on
/// a worker thread of the caller's; cancel(), isCancelled() and isFinished() are for any thread,
/// the results for those who have seen isFinished(). A step that fails costs its own result and one
/// log line; a cancelled import has no results.
class ImportPDFOperation {
public:
    ImportPDFOperation(const QString& path, const QString& pageRange, qint32 DPI, qint32 quality,
        const PDFImportOptions& options = {});

    bool importLinks() const { return iImportLinks; }
    void setImportLinks(bool importLinks) { iImportLinks = importLinks; }

    bool importBookmarks() const { return iImportBookmarks; }
    void setImportBookmarks(bool importBookmarks) { iImportBookmarks = importBookmarks; }

    void main();
    /// Honoured before the next page and between the steps.
    void cancel();
    bool isCancelled() const { return iCancelled; }
    bool isFinished() const { return iFinished; }

    const std::shared_ptr<FlashPageSourcePDF>& flashPageSource() const { return iFlashPageSource; }
    const std::shared_ptr<FlashPagesAnnotations>& flashPagesAnnotation() const
    {
        return iFlashPagesAnnotation;
    }
    const std::shared_ptr<FlashOutline>& flashOutline() const { return iFlashOutline; }

    /// Why there is no page source although nobody cancelled; empty otherwise.
    const QString& pagesProblem() const { return iPagesProblem; }

private:
    /// The reason when the step threw.
    static std::optional<QString> guarded(const QString& step, const std::function<void()>& work);

    void importPages();
    void importPageLinks();
    void importOutline();
    void dropResults();
    void setFlashPageSource(std::shared_ptr<FlashPageSourcePDF> source);
    std::shared_ptr<const PDFDocument> document() const;

    std::shared_ptr<FlashPageSourcePDF> iFlashPageSource;
    std::shared_ptr<FlashPagesAnnotations> iFlashPagesAnnotation;
    std::shared_ptr<FlashOutline> iFlashOutline;
    qint32 iDPI;
    qint32 iQuality;
    QString iPDFPath;
    QString iPageRange;
    PDFImportOptions iOptions;
    bool iImportBookmarks = false;
    bool iImportLinks = false;
    QString iPagesProblem;

    std::mutex iSourceMutex; // cancel() and main() meet at the page source
    std::atomic<bool> iCancelled = false;
    std::atomic<bool> iFinished = false;
};

} // namespace leafcast
