// SPDX-License-Identifier: MIT
#pragma once

#include "cli/PasswordOptions.h"
#include "cli/ProgressBar.h"
#include "cli/TemplateChoice.h"
#include "pdf/PDFServiceLimits.h"

#include <optional>

namespace leafcast {

/// What `leafcast publish` was asked for, as typed.
struct PublishOptions {
    std::vector<std::string> inputsAndOutput; // the last one is the output folder
    std::string pages = "ALL";
    int qualityLevel = 0;
    std::optional<std::string> title;
    std::optional<std::string> description;
    std::optional<std::string> keywords;
    std::optional<std::string> name;
    TemplateOptions templateOptions;
    bool app = false;
    bool zip = false;
    bool noLinks = false;
    bool noOutline = false;
    PasswordOptions passwordOptions;
    int jobs = 0; // 0: one a processor core
    PDFServiceLimits limits;
    bool force = false;
    bool open = false;
    bool quiet = false;
    bool json = false;

    void addTo(CLI::App& command);

    QStringList inputs() const;
    QString outputFolder() const;
    /// The name of the package, without extension. Throws CommandFailure for one that is none.
    QString packageName() const;
    /// The file name of the page; a null string where the writer is to choose. Throws
    /// CommandFailure.
    QString pageFileName() const;
    ProgressBar::Visibility progressVisibility() const
    {
        return quiet ? ProgressBar::Visibility::Never : ProgressBar::Visibility::WhenTerminal;
    }
    /// The JPEG quality (0 to 100) of the quality level.
    int quality() const;
};

} // namespace leafcast
