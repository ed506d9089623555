// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <QByteArray>
#include <QString>

/// File steps of best-effort work: a failed step writes one warning to the log (what, path, why)
/// and tells its caller, who goes on. Callers that must know look at the result; the others may
/// ignore it.
namespace leafcast::FileSteps {

/// True for anything at the path, a dangling link too.
bool exists(const QString& path);

/// Removes a file, a link (never what it points at) or a folder with all its content. Nothing there
/// is success.
bool remove(const QString& path);

/// Makes the folder with all missing parents.
bool makeFolders(const QString& path);

/// Makes the folder; its parent must exist.
bool makeFolder(const QString& path);

/// Copies a regular file to a path where nothing lies yet. The copy appears whole or not at all and
/// keeps modification time and permissions where the file system lets it, whose own cloning is used
/// where it has it.
bool copyFile(const QString& source, const QString& destination);

/// Makes destination the same as source. An unchanged one (same size and modification time) is left
/// alone; an older one is swapped for the copy in one step; without a source it is removed.
bool replaceFile(const QString& source, const QString& destination);

/// Copies a folder with everything below it to a path where nothing lies yet, and not inside the
/// folder. Links are followed; whatever is neither a file nor a folder is left out, and a folder
/// that links lead back to. Goes on after a file that fails; reason gets the first failure.
bool copyFolder(const QString& source, const QString& destination, QString* reason = nullptr);

/// Writes to a temporary file beside the path, then replaces the path with it. A failure leaves the
/// older file.
[[nodiscard]] bool writeAtomically(const QString& path, const QByteArray& bytes);

/// The whole file; none, with a log line, when it can't be read.
[[nodiscard]] std::optional<QByteArray> read(const QString& path);

} // namespace leafcast::FileSteps
