// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace leafcast {

class FlashBookOutput;

/// The path itself, or the nearest above it that exists.
QString nearestExisting(const QString& absolutePath);

/// What the writer's pages need on the disk, beside those they replace; an estimate from above.
qint64 bytesForBook(const FlashBookOutput& writer);
/// What a whole archive of the book needs.
qint64 bytesForArchive(const FlashBookOutput& writer);

/// The sentence, without capital and full stop, on a disk that has too little room for so much of
/// something, such as "the book"; empty when there is enough, or when the system can't tell.
QString roomProblem(qint64 bytesNeeded, const QString& folder, const QString& what);

} // namespace leafcast
