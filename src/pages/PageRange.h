// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <vector>

/// The text in which people write which pages they want: "ALL", or numbers and ranges such as
/// "1-3,7".
namespace leafcast::PageRange {

/// A longer list is a mistake, or an attack on our memory.
constexpr qint64 mostNumbers = 1'000'000;

/// "ALL" in any case, without blanks.
bool isAll(const QString& range);

/// Ascending page numbers without duplicates. "ALL" is 1 to totalPage; other numbers
/// are not compared with it: 0 and numbers beyond it stay. Text that is no number reads as 0, so
/// the empty range is page 0. Throws NamedException "ERROR_PAGE_RANGE_TOO_LONG" when the pieces
/// together name more than mostNumbers.
std::vector<qint32> parse(const QString& range, qint32 totalPage);

} // namespace leafcast::PageRange
