// SPDX-License-Identifier: MIT
#include "cli/OpenedPDF.h"

#include "cli/ExitCode.h"
#include "pages/ImportSentences.h"

namespace leafcast {

namespace {

    ExitCode exitCodeFor(PDFOpenError error)
    {
        const bool password = error == PDFOpenError::Locked || error == PDFOpenError::WrongPassword;
        return password ? ExitCode::PasswordNeeded : ExitCode::InputUnreadable;
    }

} // namespace

std::shared_ptr<PDFDocument> openPDF(const PDFDocument::Source& source)
{
    const PDFDocument::OpenResult result = PDFDocument::open(source);
    if (!result.document)
        throw CommandFailure(
            exitCodeFor(result.error), ImportSentences::notOpened(source.path, result));
    return result.document;
}

} // namespace leafcast
