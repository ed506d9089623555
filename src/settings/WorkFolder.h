// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Private folders for work in progress, below "/tmp" for all users of the machine.
namespace leafcast::WorkFolder {

/// Makes "/tmp/NAME/temp.XXXXXX" with mode 0700. The parent belongs to the first user who needs it,
/// or to root: sticky and writable for all. One that is a link, not a folder, or in which a
/// stranger could swap what we make, is refused with one warning in the log, and the folder is
/// "/tmp/NAME-XXXXXX" instead: so it is for every later user, unless root made the parent, because
/// the sticky bit does not bind a folder's owner. When neither can be made, the path returned does
/// not exist.
QString make(const QString& name);

} // namespace leafcast::WorkFolder
