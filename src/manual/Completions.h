// SPDX-License-Identifier: MIT
#pragma once

#include "manual/CommandDescription.h"

namespace leafcast {

/// Each returns the script that completes the program in one shell; skeletons is the folder of the
/// files that hold what does not depend on the program. They throw std::runtime_error.
QString bashCompletion(const CommandDescription& program, const QString& skeletons);
QString zshCompletion(const CommandDescription& program, const QString& skeletons);
QString fishCompletion(const CommandDescription& program, const QString& skeletons);

/// A line such as "leafcast settings show" as part of the name of a shell function.
QString functionName(QString line);

/// The template of a book for which none is named.
QString usualTemplate(const CommandDescription& program);

} // namespace leafcast
