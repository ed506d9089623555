// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <cstddef>
#include <QString>

namespace leafcast::service {

/// Reads a PDF text string (ISO 32000, 7.9.2.2): UTF-16 or UTF-8 when it starts with a byte order
/// mark, else PDFDocEncoding. Language escapes are dropped, control characters become blanks.
QString textFromPDFString(const char* bytes, size_t length);

} // namespace leafcast::service
