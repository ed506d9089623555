// SPDX-License-Identifier: MIT
#pragma once

#include <array>

namespace leafcast {

/// One of the quality levels that people choose from; the level is the position in the table.
struct ImportQuality {
    const char* name;
    int quality; // 0 to 100, as the page source takes it
};

/// The dialog's list, the command line's names and the remembered level all read this table.
inline constexpr std::array<ImportQuality, 5> importQualities{ { { "best", 100 }, { "high", 85 },
    { "medium", 65 }, { "low", 45 }, { "smallest", 25 } } };

/// The quality of a remembered level; the best for one that is none.
constexpr int qualityOfLevel(int level)
{
    const bool known = level >= 0 && level < static_cast<int>(importQualities.size());
    return known ? importQualities.at(static_cast<size_t>(level)).quality
                 : importQualities.front().quality;
}

} // namespace leafcast
