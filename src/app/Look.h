// SPDX-License-Identifier: MIT
#pragma once

#include <QPalette>

namespace leafcast {

/// Whether windows are light or dark; System is what the desktop's own palette is.
enum class Appearance { System, Light, Dark };

/// Contrast of text and of its disabled kind is at least 4.5 and 3 to 1.
QPalette lightPalette();
QPalette darkPalette();

/// The program's look on every desktop: one style, one palette. To be called once at the start with
/// the desktop's palette still in place, and whenever the user chooses anew.
void applyLook(Appearance appearance);

} // namespace leafcast
