// SPDX-License-Identifier: MIT
#include "FuzzTarget.h"
#include "pages/ImageHeader.h"

using namespace leafcast;
using namespace Qt::StringLiterals;

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString file = fuzz::fileWith(fuzz::bytesOf(data, size), u"picture"_s);
    const QSize pixels = ImageHeader::sizeInPixels(file);
    const QSize points = ImageHeader::sizeInPoints(file);
    fuzz::require(pixels.width() >= 0 && pixels.height() >= 0, "a size is not negative");
    fuzz::require(points.width() >= 0 && points.height() >= 0, "a size is not negative");
    return 0;
}
