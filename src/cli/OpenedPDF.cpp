// SPDX-License-Identifier: MIT
#include "cli/OpenedPDF.h"

#include "cli/ExitCode.h"
#include "cli/FileReason.h"

using namespace Qt::StringLiterals;

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
        throw CommandFailure(exitCodeFor(result.error),
            u"the PDF %1 can't be opened: %2"_s.arg(
                source.path, whyUnreadable(source.path, result.reason)));
    return result.document;
}

} // namespace leafcast
