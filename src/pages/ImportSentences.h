// SPDX-License-Identifier: MIT
#pragma once

#include "pages/PDFToPageConverter.h"
#include "pdf/PDFDocument.h"

#include <QString>
#include <vector>

/// Why an import brought nothing, or not all: sentences without capital and full stop that name the
/// file and the reason.
namespace leafcast::ImportSentences {

/// For a result without a document.
QString notOpened(const QString& path, const PDFDocument::OpenResult& result);
QString noPages(const QString& path);
QString notImported(const QString& path);
/// Empty when at least one of the pages has a picture.
QString noPageDrawn(const QString& path, const std::vector<PageReport>& pages);

/// Which of the pages have no picture, for a book that has others; empty when all have one.
QString pagesNotDrawn(const std::vector<PageReport>& pages);

/// "1 page", "12 pages"
QString countOfPages(qsizetype count);

} // namespace leafcast::ImportSentences
