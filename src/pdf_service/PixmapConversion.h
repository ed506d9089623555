// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <mupdf/fitz.h>

namespace leafcast::service {

class PrintColour;

/// Between pixmaps of the same size, without spot colours: CMYK to RGB or grey, RGB to CMYK.
/// Colours of a pixmap with alpha are premultiplied; where there is none, a pixel is opaque.
void convertPixmap(PrintColour& colour, const fz_pixmap* source, fz_pixmap* destination) noexcept;

} // namespace leafcast::service
