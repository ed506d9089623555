// SPDX-License-Identifier: MIT
#include "pages/import/ImportProblem.h"

#include "pages/import/ImportPDFOperation.h"
#include "pages/ImportSentences.h"

namespace leafcast {

QString importProblem(const QString& path, const ImportPDFOperation& operation)
{
    if (operation.isCancelled())
        return {};
    const auto& source = operation.flashPageSource();
    if (!source)
        return ImportSentences::notImported(path) + QStringLiteral(": ") + operation.pagesProblem();
    if (!source->document())
        return ImportSentences::notOpened(path, source->openResult());
    if (source->document()->pageCount() == 0)
        return ImportSentences::noPages(path);
    return ImportSentences::noPageDrawn(path, source->pageReports());
}

} // namespace leafcast
