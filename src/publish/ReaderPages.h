// SPDX-License-Identifier: MIT
#pragma once

#include "pages/FlashPageSource.h"
#include "publish/ReaderData.h"
#include "publish/ReaderOutline.h"

#include <functional>
#include <memory>

namespace leafcast {

class PDFPage;
class PDFTextReader;
struct PDFAnnotation;

/// What reader data is made from. The references outlive the work.
struct ReaderBook {
    const FlashPageSource& pageSource;
    bool withLinks = false;
    const FlashOutline* outline = nullptr; // may be none
    std::function<QString(const FlashPage&)> imageURL; // relative to the book folder
    int workers = 0; // processes that read the text; 0: one a processor core
};

/// Makes the reader data of a book's pages, one after another, so that few pages' texts are in
/// memory at a time. Links, labels and text come from the page source's document; a source of
/// images has none.
class ReaderPages {
public:
    explicit ReaderPages(const ReaderBook& book);
    ~ReaderPages();
    ReaderPages(const ReaderPages&) = delete;
    ReaderPages& operator=(const ReaderPages&) = delete;

    bool atEnd() const { return iNext == iPages.size(); }
    ReaderPage next();
    int position() const { return static_cast<int>(iNext); } // how many were made
    int count() const { return static_cast<int>(iPages.size()); }

    /// http, https, mailto and tel: what a reader may open without harm.
    static bool isPublishableURL(const QString& url);

private:
    void addFromDocument(ReaderPage& page);
    std::vector<ReaderLink> linksOf(const PDFPage& page) const;
    std::optional<ReaderLink> linkFrom(const PDFAnnotation& annotation) const;

    const ReaderBook& iBook;
    BookPlaces iPlaces;
    FlashPageSource::Pages iPages;
    std::shared_ptr<const PDFDocument> iDocument;
    std::unique_ptr<PDFTextReader> iTextReader;
    size_t iNext = 0;
};

} // namespace leafcast
