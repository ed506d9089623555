// SPDX-License-Identifier: MIT
#pragma once

#include "pdf/PDFText.h"

#include <optional>
#include <QString>
#include <vector>

/// What the player needs beyond the configuration script: the values of the files in
/// "files/search". Rectangles are fractions of the page as it is displayed.
namespace leafcast {

/// A clickable area: a web address, or a page.
struct ReaderLink {
    PageFraction area;
    std::optional<QString> url;
    int page = 0; // number of the target in the PDF, from 1
    int place = 0; // the target's position in the book, from 1; 0 when it is not in the book
};

struct ReaderPage {
    int number = 0; // of the page in the PDF, or the position of an image, from 1
    QString label;
    QString image; // relative to the book folder
    int width = 0; // pixels; 0 without a picture
    int height = 0;
    std::vector<ReaderLink> links;
    std::vector<PDFTextLine> lines;
};

struct ReaderOutlineItem {
    QString title;
    int page = 0; // as in ReaderLink; 0 without a target
    int place = 0;
    std::vector<ReaderOutlineItem> items;
};

} // namespace leafcast
