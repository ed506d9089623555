// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <array>
#include <QByteArray>
#include <QString>
#include <vector>

namespace leafcast::service {

/// A JPEG file as another reader sees it.
struct DecodedJPEG {
    using Pixel = std::array<int, 3>;

    static DecodedJPEG read(const QString& path);
    static DecodedJPEG decode(const QByteArray& bytes);

    Pixel at(int x, int y) const;
    Pixel atFraction(double x, double y) const; // of the width and height

    int width = 0;
    int height = 0;
    int components = 0;
    int horizontalSampling = 0; // of the luminance
    int dotsPerInch = 0;
    bool progressive = false;
    std::vector<unsigned char> pixels{}; // RGB
};

} // namespace leafcast::service
