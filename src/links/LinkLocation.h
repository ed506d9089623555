// SPDX-License-Identifier: MIT
#pragma once

#include "pdf/PDFGeometry.h"

#include <QString>

namespace leafcast {

/// Where a link lies, as its record states it: fractions of the crop box, origin top-left, in
/// single precision.
///
/// The format is older than this program and is kept with its two oddities: the crop box's origin
/// is not subtracted, and on turned pages the fractions are still of the unturned box. For what the
/// reader sees use PDFPage::displayed().
struct LinkLocation {
    float x = 0;
    float y = 0;
    float width = 0;
    float height = 0;

    /// rotation is taken as the file has it: any value but 0, 90, 180 and 270 gives an empty
    /// rectangle.
    static LinkLocation of(const PDFRect& bounds, const PDFRect& cropBox, int rotation);

    /// Six decimals and a point, in every locale.
    static QString text(float fraction);
};

} // namespace leafcast
