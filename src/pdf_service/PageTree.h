// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <mupdf/pdf.h>
#include <unordered_map>
#include <vector>

namespace leafcast::service {

class Library;

/// The pages of a document in order, as object numbers. The tree is walked once, without recursion
/// and with a memory of the nodes seen, because a file can nest it deeply or close it to a loop.
/// The library's own lookup is then fed from here, so that loading page n costs the same for any n.
class PageTree {
public:
    void load(const Library& library, pdf_document* document);

    int count() const { return static_cast<int>(iObjects.size()); }
    /// -1 when the object is no page of the document.
    int indexOf(int objectNumber) const;
    /// Object number of a page's dictionary; the object may be missing from a damaged file.
    int objectOf(int index) const { return iObjects[static_cast<size_t>(index)]; }

private:
    struct Walk;

    void number(const Library& library, pdf_document* document);

    std::vector<int> iObjects;
    std::unordered_map<int, int> iIndices;
};

} // namespace leafcast::service
