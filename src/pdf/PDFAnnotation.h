// SPDX-License-Identifier: MIT
#pragma once

#include "pdf/PDFGeometry.h"

#include <optional>
#include <QString>

namespace leafcast {

/// Where a link or an outline entry leads inside the document.
struct PDFDestination {
    /// Index of the page, from 0; -1 when the target names no page of the document.
    int pageIndex = -1;
};

/// One annotation of a page, as the file has it.
struct PDFAnnotation {
    /// Subtype without the slash: "Link", "Text", "Widget".
    QString type{};
    PDFRect bounds{};
    /// Absolute URL of a link to the web; none otherwise.
    std::optional<QString> URL{};
    std::optional<PDFDestination> destination{};
};

} // namespace leafcast
