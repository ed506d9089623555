// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace leafcast::preview {

/// Shows the address in the user's browser, without waiting for it. Answers whether that could be
/// started.
bool openInBrowser(const std::string& url);

} // namespace leafcast::preview
