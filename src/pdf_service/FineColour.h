// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "pdf_service/Bitmap.h"

namespace leafcast::service {

/// Whether halving the colour resolution would show: more than 0.5 percent of the pixels change Cb
/// or Cr by over 16 when both are averaged 2 by 2. Thin coloured lines and small coloured text do.
/// False for a grey bitmap.
bool hasFineColour(const Bitmap& bitmap);

} // namespace leafcast::service
