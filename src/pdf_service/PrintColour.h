// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <cstddef>
#include <lcms2.h>
#include <memory>
#include <QByteArray>

namespace leafcast::service {

/// Converts between the inks of one printing condition (CMYK) and the screen (sRGB): relative
/// colorimetric with black point compensation, which is what Ghostscript and the usual viewers
/// show. Without a usable profile the colour of an ink mixture is interpolated between the sixteen
/// full overprints of a common coated-paper condition. Nothing throws: out of memory ends the
/// process.
class PrintColour {
public:
    /// An ICC profile of a CMYK device; anything else counts as none.
    explicit PrintColour(const QByteArray& profile) noexcept;

    bool hasProfile() const { return iProfile != nullptr; }

    /// One colour, components from 0 to 1.
    void toScreen(const float* cmyk, float* rgb) noexcept;
    void toInk(const float* rgb, float* cmyk) noexcept;

    /// Pixels of 8 bits a component.
    void toScreen(const unsigned char* cmyk, unsigned char* rgb, size_t pixels) noexcept;
    void toInk(const unsigned char* rgb, unsigned char* cmyk, size_t pixels) noexcept;

private:
    struct Closer {
        void operator()(void* profile) const { cmsCloseProfile(profile); }
    };
    struct Deleter {
        void operator()(void* transform) const { cmsDeleteTransform(transform); }
    };
    using Transform = std::unique_ptr<void, Deleter>;

    cmsHTRANSFORM pixelsToScreen(size_t pixels) noexcept;
    cmsHTRANSFORM make(Transform& slot, bool toScreen, cmsUInt32Number flags) noexcept;

    std::unique_ptr<void, Closer> iProfile;
    std::unique_ptr<void, Closer> iScreen;
    Transform iExact; // no preparation, 3 million pixels a second
    Transform iTabled; // 25 ms of preparation, 17 million pixels a second
    Transform iToInk;
    size_t iExactPixels = 0;
};

} // namespace leafcast::service
