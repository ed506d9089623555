// SPDX-License-Identifier: MIT
#pragma once

#include "templates/FlashTemplate.h"

#include <CLI/CLI.hpp>
#include <memory>
#include <QStringList>

namespace leafcast {

/// The options that name a template and its values; shared by the commands that load one.
struct TemplateOptions {
    std::string templateName = "float";
    std::string styleName;
    std::string settingsFile;
    std::vector<std::string> assignments; // KEY=VALUE, applied last

    void addTo(CLI::App& command);
};

/// The template with style, settings file and single values applied, in that order. What is odd but
/// no failure is appended to warnings. Throws CommandFailure.
std::shared_ptr<FlashTemplate> loadChosenTemplate(
    const TemplateOptions& options, QStringList& warnings);

/// Applies a settings file; what is odd but no failure is appended to warnings. Throws
/// CommandFailure.
void applySettingsFile(FlashTemplate& flashTemplate, const QString& path, QStringList& warnings);

/// Throws CommandFailure when there are none.
QStringList templateNames();

/// Throws CommandFailure when there is no template of that name.
void requireTemplate(const QString& templateName);

} // namespace leafcast
