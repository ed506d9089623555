// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace leafcast {

/// Where a user's programs keep their own files; the empty string when the system names none.
QString applicationSupportFolder();

} // namespace leafcast
