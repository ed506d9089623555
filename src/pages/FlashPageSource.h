// SPDX-License-Identifier: MIT
#pragma once

#include "pages/FlashPage.h"

#include <atomic>
#include <memory>
#include <QString>
#include <unordered_set>
#include <vector>

namespace leafcast {

class PDFDocument;

/// The ordered pages from which a book is written. A source is filled once, then makes its normal
/// pages. The lists are not locked: one thread at a time; only the stop flag may be set from
/// another one.
class FlashPageSource {
public:
    using Pages = std::vector<std::shared_ptr<FlashPage>>;

    FlashPageSource() = default;
    virtual ~FlashPageSource() = default;
    FlashPageSource(const FlashPageSource&) = delete;
    FlashPageSource& operator=(const FlashPageSource&) = delete;

    /// See PageRange::parse().
    static std::vector<qint32> parsePageRange(const QString& range, qint32 totalPage);

    virtual void generatePages() { }
    virtual void generateNormalPages() { }

    std::shared_ptr<FlashPage> getZoomedPageAtIndex(qint32) const { return nullptr; }
    std::shared_ptr<FlashPage> getThumbPageAtIndex(qint32) const { return nullptr; }

    /// Empties the four lists; files and the stop flag stay.
    void clearPages();

    Pages& pages() { return iPages; }
    const Pages& pages() const { return iPages; }
    /// The pages that a book shows: copies of pages().
    Pages& normalPages() { return iNormalPages; }
    const Pages& normalPages() const { return iNormalPages; }
    /// No source of ours fills these two.
    Pages& zoomedPages() { return iZoomedPages; }
    const Pages& zoomedPages() const { return iZoomedPages; }
    Pages& thumbPages() { return iThumbPages; }
    const Pages& thumbPages() const { return iThumbPages; }

    /// Path of the document that the pages come from; empty for images.
    const QString& sourceFile() const { return iSourceFile; }
    void setSourceFile(const QString& path) { iSourceFile = path; }

    /// Asks a running generation to end before its next page. Any thread; nothing clears it.
    bool stop() const { return iStoped; }
    void setStop(bool stop) { iStoped = stop; }

    /// The document behind the pages, for its links, text and labels; none for images.
    virtual std::shared_ptr<const PDFDocument> document() const { return nullptr; }

protected:
    std::shared_ptr<FlashPage> pageAtPosition(quint32 position) const;
    std::unordered_set<qint32> numbersOfNormalPages() const;

private:
    Pages iPages;
    Pages iNormalPages;
    Pages iZoomedPages;
    Pages iThumbPages;
    QString iSourceFile = QStringLiteral("");
    std::atomic<bool> iStoped = false;
};

} // namespace leafcast
