// SPDX-License-Identifier: MIT
#pragma once

#include "pdf/PDFAnnotation.h"

#include <QString>
#include <vector>

namespace leafcast {

/// One node of the document's bookmark tree; the root has no label. At most 100 levels deep: what
/// lies deeper in the file hangs at the last level.
struct PDFOutline {
    QString label{};
    PDFDestination destination{};
    std::vector<PDFOutline> children{};

    int numberOfChildren() const { return static_cast<int>(children.size()); }
    const PDFOutline& childAtIndex(int index) const
    {
        return children.at(static_cast<size_t>(index));
    }
};

} // namespace leafcast
