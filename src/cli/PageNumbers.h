// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <vector>

namespace leafcast {

/// The numbers that --pages names, for an input of so many pages. Throws CommandFailure for an
/// input without pages, and for a range that names none of them.
std::vector<qint32> pageNumbers(const QString& range, const QString& input, int pageCount);

} // namespace leafcast
