// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "pdf_service/Bitmap.h"

#include <array>
#include <gtest/gtest.h>
#include <QByteArray>

namespace leafcast::service {

using Pixel = std::array<int, 3>;

/// A JPEG file as the library reads it, in RGB.
struct DecodedJPEG : Bitmap {
    static DecodedJPEG decode(const QByteArray& bytes);

    Pixel at(int x, int y) const;

    bool isGrey = false; // in the file
};

/// What the library writes when left alone: one component is grey, three are RGB, four CMYK.
QByteArray encodedByTheLibrary(const Bitmap& bitmap, int quality, int sampling);

bool isNear(const Pixel& found, const Pixel& expected, int tolerance = 12);

} // namespace leafcast::service
