// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <mupdf/fitz.h>

namespace leafcast::service {

/// Makes a drawing device leave out a picture or a shading that can't be decoded, where it would
/// otherwise draw nothing more on the page. Running out of memory still ends the page. One device
/// at a time; *damaged becomes true when something was left out.
void tolerateDamage(fz_device* device, bool* damaged);

} // namespace leafcast::service
