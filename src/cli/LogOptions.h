// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/CLI.hpp>

namespace leafcast {

/// What every command tells of its work: nothing, unless asked for.
struct LogOptions {
    bool verbose = false;
    std::string logFile;

    void addTo(CLI::App& program);
    /// Throws CommandFailure for a log file that can't be written.
    void configure() const;
};

} // namespace leafcast
