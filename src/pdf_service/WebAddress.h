// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <cstddef>
#include <QString>

namespace leafcast::service {

/// The scheme of an address ("https"), in lower case; empty when it has none.
QString schemeOf(const QString& address);

/// The address of a URI action: bytes that should be ASCII but often are UTF-8. A relative one is
/// resolved against the document's base address when there is one; one that starts with "www."
/// otherwise gets the scheme that its writer left out.
QString webAddress(const char* bytes, size_t length, const QString& base);

} // namespace leafcast::service
