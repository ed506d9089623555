// SPDX-License-Identifier: MIT
#pragma once

#include "links/FlashOutline.h"
#include "links/FlashPagesAnnotations.h"
#include "pages/FlashPageSourceCopy.h"
#include "publish/BookPlace.h"
#include "templates/FlashTemplate.h"

#include <atomic>
#include <memory>
#include <optional>

namespace leafcast {

class FlashBookOutput;

/// One publication of the book that is being worked on. It writes from copies of the template and
/// of the page lists, so that run() may be on a worker thread while the user goes on. The answers
/// on problems are sentences without capital and full stop, empty when all is well.
class BookPublication {
public:
    struct Parts {
        std::shared_ptr<FlashPageSource> pageSource;
        std::shared_ptr<FlashTemplate> flashTemplate;
        std::shared_ptr<FlashPagesAnnotations> annotations; // may be none
        std::shared_ptr<FlashOutline> outline; // may be none
    };

    struct Choices {
        QString folder; // as typed
        QString name; // of the page or the package, without extension
        BookPlace::Kind kind = BookPlace::Kind::Folder;
        QString title; // stands in the page as it is, as do the next two
        std::optional<QString> description; // of the page; none: the default
        std::optional<QString> keywords;
    };

    /// On the main thread. The page source and the template are there.
    BookPublication(const Parts& parts, const Choices& choices);
    ~BookPublication();

    /// Why it can't be published like this. Touches nothing.
    QString problem() const;
    /// What lies there that is no book of ours, and would be lost or lie among the book.
    QString replacementProblem() const { return iPlace.replacementProblem(); }

    /// Writes the book, and looks at what was written.
    void run();
    /// Any thread. What is written by then stays.
    void cancel();
    bool isCancelled() const { return iPages->stop(); }

    /// After run(): why the book is not whole. A page that the import could not draw is no reason.
    const QString& failure() const { return iFailure; }
    /// The page or the package.
    QString outputFileName() const;
    const QString& bookPath() const { return iPlace.bookPath(); }

private:
    QString nameProblem() const;
    QString folderProblem() const;
    QStringList filesRead() const;
    bool makeFolder() const;
    void write();
    QString incompleteness() const;

    Choices iChoices;
    BookPlace iPlace;
    std::shared_ptr<FlashPageSourceCopy> iPages;
    std::unique_ptr<FlashBookOutput> iWriter;
    QString iFailure;
};

} // namespace leafcast
