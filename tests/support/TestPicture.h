// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>
#include <QBuffer>
#include <QByteArray>
#include <QImage>

namespace leafcast {

/// The bytes of a picture file. Needs Qt Gui.
inline QByteArray testPicture(QSize size, double dotsPerInch = 72, const char* format = "JPG")
{
    constexpr double inchesPerMetre = 1 / 0.0254;
    QImage image(size, QImage::Format_RGB32);
    image.setDotsPerMeterX(qRound(dotsPerInch * inchesPerMetre));
    image.setDotsPerMeterY(image.dotsPerMeterX());
    QBuffer bytes;
    EXPECT_TRUE(image.save(&bytes, format));
    return bytes.data();
}

} // namespace leafcast
