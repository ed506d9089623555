// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <cstddef>

namespace leafcast::service {

/// Print colours without a profile, 8 bits a component. The screen colour of an ink mixture is
/// interpolated between the sixteen full overprints of cyan, magenta, yellow and black.
void interpolateInkCorners(const unsigned char* cmyk, unsigned char* rgb, size_t pixels);

/// The other way: complements, with their common part as black.
void separateSimply(const unsigned char* rgb, unsigned char* cmyk, size_t pixels);

} // namespace leafcast::service
