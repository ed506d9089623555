// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

namespace leafcast::service {

class PrintColours;

/// Debian builds the PDF library without colour management: pure cyan ink comes out as pure screen
/// cyan, and every print-ready catalogue looks neon. The linker's --wrap puts functions of ours in
/// the place of the two that convert colours and pixels, and of the one that reads colour spaces;
/// they send CMYK through the converters named here and leave the rest to the library. Null: all is
/// left to the library.
void setPrintColours(PrintColours* colours);

} // namespace leafcast::service
