// SPDX-License-Identifier: MIT
#include "pages/ui/PDFGlance.h"

namespace leafcast {

void PDFGlance::look(const QString& path)
{
    const int number = ++iLatest;
    const auto sight = std::make_shared<Sight>();
    const auto work = [sight, path] {
        const auto result = PDFDocument::open({ .path = path });
        sight->error = result.error;
        sight->pageCount = result.document ? result.document->pageCount() : 0;
    };
    iQueue.add(work, [this, number, sight] {
        if (number == iLatest)
            iSeen(*sight);
    });
}

} // namespace leafcast
