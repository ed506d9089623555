// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// Folder listings in a fixed order on every machine: names in natural order, a folder before what
/// it holds.
namespace leafcast::FolderWalk {

/// Names of the direct entries, hidden ones too; empty for a folder that can't be read.
QStringList entryNames(const QString& folder);

/// Full paths of all folders below folder, at every depth. Links to folders are not followed.
QStringList subfolders(const QString& folder);

} // namespace leafcast::FolderWalk
