// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>

namespace leafcast::service {

/// A page number in the numbering style of a page label: D decimal, R and r roman, A and a letters
/// (a to z, then aa to zz, aaa to zzz); nothing for any other style. Numbers below 1, and those
/// whose text would grow without measure, are decimal.
QString numberInStyle(qint64 number, char style);

} // namespace leafcast::service
