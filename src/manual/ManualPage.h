// SPDX-License-Identifier: MIT
#pragma once

#include "manual/CommandDescription.h"

namespace leafcast {

/// The manual page of a program, for man(1). What a parser can't know, such as examples, comes from
/// further, which is in the page's own language and stands at its end.
QString manualPage(const CommandDescription& program, const QString& further);

/// The exit statuses of the command line, as such a page lists them.
QString exitStatusItems();

} // namespace leafcast
