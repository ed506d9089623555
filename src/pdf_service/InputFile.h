// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>

namespace leafcast::service {

/// Throws Missing or Empty with the reason, before a library that can't tell them apart is asked.
void checkInputFile(const QString& path);

} // namespace leafcast::service
