// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Private folders for work in progress, below "/tmp" for all users of the machine.
namespace leafcast::WorkFolder {

/// Makes "/tmp/NAME/temp.XXXXXX" with mode 0700. The parent is shared by the users of the machine:
/// sticky and writable for all. A parent that is a link, not a folder, or one in which a stranger
/// could swap what we make, is refused with a log line, and the folder is "/tmp/NAME-XXXXXX"
/// instead. When neither can be made, the path returned does not exist.
QString make(const QString& name);

} // namespace leafcast::WorkFolder
