// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// Picture files that become pages.
namespace leafcast::ImageFiles {

/// By its extension: one that browsers show.
bool isImage(const QString& path);

/// The pictures directly in a folder, in natural order; absolute paths.
QStringList inFolder(const QString& folder);

/// Files as given, folders by their pictures; absolute paths.
QStringList from(const QStringList& filesAndFolders);

/// Why the file is of no use as a page, as a clause; empty when it is one. Reads its header.
QString problem(const QString& path);

/// True when the end of a JPEG or PNG is missing, as after a transfer that broke off.
bool isCutOff(const QString& path);

} // namespace leafcast::ImageFiles
