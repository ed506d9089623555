// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// The read-only files that the program ships with: templates, styles, sample pages, helper
/// programs.
namespace leafcast::ResourceFolder {

/// Absolute path without a trailing "/": LEAFCAST_RESOURCES when set, else ../share/leafcast beside
/// the program.
QString path();

/// Path of "folder/name.type" (without the dot for an empty type); the empty string when there is
/// no such file.
QString pathForResource(const QString& name, const QString& type, const QString& folder = {});

/// Paths of all files of a type directly in a folder, in natural order.
QStringList pathsForResourcesOfType(const QString& type, const QString& folder);

/// Path of a program that ours start: the variable (LEAFCAST_PDF_SERVICE for "leafcast-pdf") when
/// set and not empty, else beside this program, else in ../libexec/leafcast. The empty string when
/// no executable file lies there; a variable that names none is not passed over for another place.
QString helperProgram(const QString& name, const char* variable);

} // namespace leafcast::ResourceFolder
