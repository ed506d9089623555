// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

namespace leafcast::service {

class PrintColour;

/// Debian builds the PDF library without colour management: pure cyan ink comes out as pure screen
/// cyan, and every print-ready catalogue looks neon. The linker's --wrap puts functions of ours in
/// the place of the two that convert colours and pixels; they send CMYK through the converter named
/// here and leave the rest to the library. Null: all is left to the library.
void setPrintColour(PrintColour* converter);

} // namespace leafcast::service
