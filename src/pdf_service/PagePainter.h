// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "pdf_service/Bitmap.h"
#include "pdf_service/LoadedPage.h"

namespace leafcast::service {

struct PaintOptions {
    double scale = 1; // pixels a point
    double maximumBytes = 0; // of the bitmap
};

struct PaintResult {
    double scale = 1; // smaller than asked when the bitmap would have been too large
    bool incomplete = false; // something on the page could not be drawn
};

/// Draws a page as displayed, on white, annotations and form fields included. The bitmap is grey
/// when there is no colour on the page. Its size is that of the page, rounded up to whole pixels;
/// the page is stretched to it, so that no white edge shows. Throws ServiceError.
PaintResult paintPage(const LoadedPage& page, const PaintOptions& options, Bitmap& bitmap);

} // namespace leafcast::service
