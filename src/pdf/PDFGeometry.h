// SPDX-License-Identifier: MIT
#pragma once

namespace leafcast {

/// A rectangle in PDF page space: points, origin bottom-left, y upwards, before the page's
/// rotation.
struct PDFRect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
};

/// A rectangle on the page as it is displayed (crop box, rotation applied): fractions of the
/// displayed width and height, origin top-left, y downwards.
struct PageFraction {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
};

} // namespace leafcast
