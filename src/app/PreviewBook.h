// SPDX-License-Identifier: MIT
#pragma once

#include "base/BackgroundQueue.h"
#include "links/FlashOutline.h"
#include "links/FlashPagesAnnotations.h"
#include "pages/FlashPageSource.h"
#include "templates/FlashTemplate.h"

#include <QObject>

namespace leafcast {

/// The book of the preview folder, written on a thread of its own so that the window stays alive.
/// When another one is asked for meanwhile, the one under way is stopped, and only the last is
/// written.
class PreviewBook : public QObject {
    Q_OBJECT

public:
    struct Parts {
        std::shared_ptr<FlashPageSource> pageSource;
        std::shared_ptr<FlashTemplate> flashTemplate;
        std::shared_ptr<FlashPagesAnnotations> annotations; // may be none
        std::shared_ptr<FlashOutline> outline; // may be none
    };

    using QObject::QObject;
    ~PreviewBook() override;

    /// Copies what may change; the folder should be there.
    void write(const Parts& parts, const QString& folder);
    /// Nothing of a book that is under way is written any more when it returns.
    void stop();
    bool isWriting() const { return iCurrent != nullptr; }

Q_SIGNALS:
    /// The page of a book that was written to its end.
    void written(const QString& page);

private:
    class Work;

    void start(std::shared_ptr<Work> work);
    void ended();

    std::shared_ptr<Work> iCurrent;
    std::shared_ptr<Work> iNext;
    BackgroundQueue iQueue;
};

} // namespace leafcast
