// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/PrintColour.h"

#include "pdf_service/InkCorners.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace leafcast::service {

namespace {

    // From here on building the table pays.
    constexpr size_t ExactPixels = 100'000;

    bool isCMYKProfile(cmsHPROFILE profile)
    {
        return profile != nullptr && cmsGetColorSpace(profile) == cmsSigCmykData;
    }

    unsigned char toByte(float value)
    {
        return static_cast<unsigned char>(std::lround(std::clamp(value, 0.0F, 1.0F) * 255));
    }

    // The library truncates when it goes back to bytes; the little more keeps the value.
    float fromByte(unsigned char value)
    {
        return std::min((static_cast<float>(value) + 0.1F) / 255, 1.0F);
    }

} // namespace

PrintColour::PrintColour(const QByteArray& profile) noexcept
{
    iProfile.reset(
        cmsOpenProfileFromMem(profile.constData(), static_cast<cmsUInt32Number>(profile.size())));
    if (!isCMYKProfile(iProfile.get()))
        iProfile.reset();
    iScreen.reset(cmsCreate_sRGBProfile());
    if (iProfile && make(iExact, true, cmsFLAGS_NOOPTIMIZE) == nullptr)
        iProfile.reset();
}

void PrintColour::toScreen(const float* cmyk, float* rgb) noexcept
{
    std::array<unsigned char, 4> inks{};
    std::array<unsigned char, 3> screen{};
    std::transform(cmyk, cmyk + 4, inks.begin(), toByte);
    if (iProfile)
        cmsDoTransform(iExact.get(), inks.data(), screen.data(), 1);
    else
        interpolateInkCorners(inks.data(), screen.data(), 1);
    std::transform(screen.begin(), screen.end(), rgb, fromByte);
}

void PrintColour::toInk(const float* rgb, float* cmyk) noexcept
{
    std::array<unsigned char, 3> screen{};
    std::array<unsigned char, 4> inks{};
    std::transform(rgb, rgb + 3, screen.begin(), toByte);
    toInk(screen.data(), inks.data(), 1);
    std::transform(inks.begin(), inks.end(), cmyk, fromByte);
}

void PrintColour::toScreen(const unsigned char* cmyk, unsigned char* rgb, size_t pixels) noexcept
{
    cmsHTRANSFORM transform = pixelsToScreen(pixels);
    if (transform != nullptr)
        cmsDoTransform(transform, cmyk, rgb, static_cast<cmsUInt32Number>(pixels));
    else
        interpolateInkCorners(cmyk, rgb, pixels);
}

void PrintColour::toInk(const unsigned char* rgb, unsigned char* cmyk, size_t pixels) noexcept
{
    cmsHTRANSFORM transform = iProfile ? make(iToInk, false, 0) : nullptr;
    if (transform != nullptr)
        cmsDoTransform(transform, rgb, cmyk, static_cast<cmsUInt32Number>(pixels));
    else
        separateSimply(rgb, cmyk, pixels);
}

cmsHTRANSFORM PrintColour::pixelsToScreen(size_t pixels) noexcept
{
    if (!iProfile)
        return nullptr;
    iExactPixels += pixels;
    return iExactPixels < ExactPixels ? iExact.get() : make(iTabled, true, 0);
}

cmsHTRANSFORM PrintColour::make(Transform& slot, bool toScreen, cmsUInt32Number flags) noexcept
{
    const cmsUInt32Number all = flags | cmsFLAGS_BLACKPOINTCOMPENSATION;
    if (!slot && toScreen)
        slot.reset(cmsCreateTransform(iProfile.get(), TYPE_CMYK_8, iScreen.get(), TYPE_RGB_8,
            INTENT_RELATIVE_COLORIMETRIC, all));
    else if (!slot)
        slot.reset(cmsCreateTransform(iScreen.get(), TYPE_RGB_8, iProfile.get(), TYPE_CMYK_8,
            INTENT_RELATIVE_COLORIMETRIC, all));
    return slot.get();
}

} // namespace leafcast::service
