// SPDX-License-Identifier: MIT
#pragma once

#include "pdf/PDFGeometry.h"

#include <QString>
#include <vector>

namespace leafcast {

/// One line of a page's text in reading order: words separated by one blank, one box a word.
struct PDFTextLine {
    QString text{};
    std::vector<PageFraction> boxes{};
};

} // namespace leafcast
