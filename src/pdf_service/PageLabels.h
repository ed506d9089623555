// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <map>
#include <mupdf/pdf.h>
#include <QString>

namespace leafcast::service {

class Library;

/// The page labels of a document ("iv", "A-3"), from the catalogue's number tree.
class PageLabels {
public:
    void load(const Library& library, pdf_document* document);

    /// Empty when the document has no labels.
    QString labelOf(int pageIndex) const;

private:
    struct Range {
        QString prefix{};
        char style = 0; // D, R, r, A, a; 0: the prefix alone
        int firstNumber = 1;
    };
    struct Reader;

    std::map<int, Range> iRanges; // by the index of the first page
};

} // namespace leafcast::service
