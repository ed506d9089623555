// SPDX-License-Identifier: MIT
#pragma once

#include "pdf/PDFAnnotation.h"
#include "pdf/PDFOutline.h"
#include "pdf/PDFPage.h"
#include "pdf/PDFServiceLimits.h"
#include "pdf/PDFText.h"

#include <memory>
#include <optional>
#include <QString>
#include <vector>

namespace leafcast {

enum class PDFOpenError {
    None,
    Missing, // no such file, or no permission
    Empty,
    Unreadable, // not a PDF, or beyond repair
    Locked, // needs a password
    WrongPassword,
    ServiceFailed, // the PDF service can't be started, or died over the file
};

/// An opened PDF: values filled from the answers of one worker of the PDF service, which is
/// restarted when it dies. Page indices are from 0. Any thread, one call at a time.
class PDFDocument {
public:
    struct Source {
        QString path{};
        QString password{};
        PDFServiceLimits limits{};
    };

    struct OpenResult {
        std::shared_ptr<PDFDocument> document; // none when error is set
        PDFOpenError error = PDFOpenError::None;
        QString reason{}; // a clause for people, such as "it is empty"
    };

    [[nodiscard]] static OpenResult open(const Source& source);
    ~PDFDocument();

    const Source& source() const;
    int pageCount() const;
    QString title() const; // empty when the document has none
    bool isRepaired() const; // damaged, but could be mended
    bool isEncrypted() const;

    /// None for an index outside the document, or a page that can't be read.
    std::optional<PDFPage> pageAtIndex(int index) const;
    /// In the page's order. Empty, with one log line, when the page can't be read; just empty for
    /// an index outside the document.
    std::vector<PDFAnnotation> annotationsOfPage(int index) const;
    std::vector<PDFTextLine> textOfPage(int index) const;
    /// None when the document has no outline.
    std::optional<PDFOutline> outlineRoot() const;

private:
    class Session;
    explicit PDFDocument(std::unique_ptr<Session> session);
    bool has(int index) const;

    std::unique_ptr<Session> iSession;
};

} // namespace leafcast
