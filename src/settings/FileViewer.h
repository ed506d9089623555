// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The desktop's file manager.
namespace leafcast::FileViewer {

/// Shows the item selected inside its parent where the file manager can do that, else opens the
/// parent. Waits for the file manager's answer, a few seconds at most.
void select(const QString& path);

} // namespace leafcast::FileViewer
