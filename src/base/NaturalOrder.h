// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

namespace leafcast {

/// Orders names as people do: "2.jpg" before "10.jpg". Runs of decimal digits compare as numbers of
/// any length, everything else by code unit, the same in every locale. A strict total order.
bool naturalLess(QStringView a, QStringView b);

} // namespace leafcast
