// SPDX-License-Identifier: MIT
#pragma once

namespace leafcast {

/// Deliberately empty: the place for constants of the application, of which there are none.
class AppConst { };

} // namespace leafcast
