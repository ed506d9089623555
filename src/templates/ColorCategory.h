// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <QString>

namespace leafcast {

/// True for "YES", "SHOW", "ENABLE" and "TRUE" in any case; nothing is trimmed.
bool valueAsBool(QStringView value);

/// A colour of the calibrated RGB space: fractions from 0 to 1.
struct RGBColor {
    float red = 0;
    float green = 0;
    float blue = 0;
    float alpha = 1;
};

/// Reads a hexadecimal number rrggbb from the start of the text, behind leading blanks and an
/// optional "0x". Bits above the 24th are ignored; a text without digits there is black.
RGBColor colorFromHexRGB(QStringView text);

/// "0x" and six lower-case hexadecimal digits; alpha is dropped. None for a colour with a component
/// that is not a number.
std::optional<QString> colorToHexRGB(const RGBColor& color);

/// The unsigned number that colour texts begin with; 0 without digits, the largest number for one
/// that does not fit.
quint32 scannedHexNumber(QStringView text);

} // namespace leafcast
