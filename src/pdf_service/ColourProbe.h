// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "pdf_service/Bitmap.h"
#include "pdf_service/LoadedPage.h"

namespace leafcast::service {

enum class ColourNeed {
    None,
    Unknown, // there is a picture or shading in a colour space
    Certain
};

/// Whether a page needs more than grey. A difference between red, green and blue of up to 2 percent
/// counts as grey: printing black alone comes out of colour management as (35, 31, 32).
ColourNeed colourNeedOf(const LoadedPage& page);

/// The exact answer, from the drawn pixels: pictures in a colour space are often grey in fact.
bool hasColour(const Bitmap& bitmap);

/// Turns an RGB bitmap into a grey one, with the weights that JPEG uses for its luminance.
void convertToGrey(Bitmap& bitmap);

} // namespace leafcast::service
