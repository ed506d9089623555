// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "pdf_service/LoadedPage.h"

#include <QString>
#include <vector>

namespace leafcast::service {

/// A rectangle on the displayed page: fractions of its width and height, origin top-left.
struct FractionBox {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
};

/// Words separated by one blank, one box a word.
struct TextLine {
    QString text{};
    std::vector<FractionBox> boxes{};
};

struct PageText {
    std::vector<TextLine> lines{};
    bool isCut = false; // there is more of it than a page for people has
};

/// The text that can be seen on a page: words outside it are left out, boxes are clipped to it.
/// Throws ServiceError.
PageText textOfPage(const LoadedPage& page);

} // namespace leafcast::service
