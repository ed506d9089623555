// SPDX-License-Identifier: MIT
#pragma once

#include "pdf/PDFAnnotation.h"
#include "pdf/PDFOutline.h"
#include "pdf/PDFPage.h"
#include "pdf/PDFText.h"

#include <optional>
#include <QJsonObject>
#include <vector>

/// The values in answers of the PDF service. What is missing or of the wrong kind reads as nothing:
/// the service handles files that nobody vouches for, so its answers are not trusted either.
namespace leafcast::PDFAnswers {

/// One place a page of the chunk; none for a page that can't be read.
std::vector<std::optional<PDFPage>> pages(const QJsonObject& answer, int firstIndex);
std::vector<PDFAnnotation> annotations(const QJsonObject& answer);
std::vector<PDFTextLine> textLines(const QJsonObject& answer);
/// None for a document without an outline.
std::optional<PDFOutline> outlineRoot(const QJsonObject& answer);

} // namespace leafcast::PDFAnswers
