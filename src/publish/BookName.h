// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace leafcast {

/// What a book is called after its input: the file's or the folder's own name without the
/// extension.
QString nameOfInput(const QString& path);

/// The name of a package that was asked for by the name of a file: "Album" of "Album.html". An
/// extension holds no blank, so that "Vol. 3" stays.
QString packageNameOf(const QString& fileName);

/// A clause on why no file of a book should be called so; empty when it may.
QString nameProblem(const QString& name);

} // namespace leafcast
