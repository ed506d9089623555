// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/CLI.hpp>
#include <optional>
#include <QString>

namespace leafcast {

/// The ways to hand over a PDF's password.
struct PasswordOptions {
    std::optional<std::string> password;
    std::string file;

    void addTo(CLI::App& command);

    /// The option, else the first line of the file, else LEAFCAST_PASSWORD. Throws CommandFailure
    /// for a file that can't be read.
    QString chosen() const;
};

} // namespace leafcast
