// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace leafcast {

/// Posted after each page, on the thread that generates them: "pageIndex" (position from 1),
/// "totalPage" (how many the import asked for) and "type", which is "geneatePage" or
/// "geneateNormalPage".
inline const QString ImportProgressInfoMSG = QStringLiteral("ImportProgressInfoMSG");

/// Reserved: nothing posts it. The end of an import is seen by its isFinished().
inline const QString ImportPDFDidFinish = QStringLiteral("ImportPDFDidFinish");

} // namespace leafcast
