// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace leafcast {

/// A file with places such as "@NAME@", which are filled. Throws std::runtime_error for one that
/// can't be read.
class Skeleton {
public:
    explicit Skeleton(const QString& path);

    Skeleton& fill(const QString& place, const QString& text);
    QString text() const { return iText; }

private:
    QString iText;
};

} // namespace leafcast
