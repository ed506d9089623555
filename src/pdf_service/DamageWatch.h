// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <mupdf/fitz.h>

namespace leafcast::service {

/// While it lives, a drawing device leaves out a picture or a shading that can't be decoded, where
/// the library would draw nothing more on the page. Running out of memory still ends the page. One
/// at a time, and not longer than the device.
class DamageWatch {
public:
    explicit DamageWatch(fz_device* device);
    ~DamageWatch();
    DamageWatch(const DamageWatch&) = delete;
    DamageWatch& operator=(const DamageWatch&) = delete;

    /// Whether something has been left out.
    bool damaged() const;
};

} // namespace leafcast::service
