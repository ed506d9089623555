// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace leafcast {

class ImportPDFOperation;

/// Why a finished import of the PDF brought no page, as a sentence without capital and full stop;
/// empty when it brought one, or was cancelled.
QString importProblem(const QString& path, const ImportPDFOperation& operation);

} // namespace leafcast
