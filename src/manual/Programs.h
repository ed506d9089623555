// SPDX-License-Identifier: MIT
#pragma once

#include "manual/CommandDescription.h"

namespace leafcast {

/// The programs, each as its own parser of the command line knows it.
CommandDescription commandLineProgram();
CommandDescription previewServer();
#ifdef LEAFCAST_WINDOWS
CommandDescription desktopApplication();
#endif

} // namespace leafcast
