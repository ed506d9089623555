// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <vector>

namespace leafcast::service {

class Document;

struct OutlineEntry {
    int level = 1; // from 1; what lies deeper than level 100 is given level 100
    int page = -1; // index of the target page, -1 without a usable target
    QString label{};
};

/// In reading order, at most 100,000 entries; empty when the document has no outline. Walked
/// without recursion, and no entry twice, because files nest outlines deeply or close them to
/// loops. Throws ServiceError.
std::vector<OutlineEntry> outlineOf(const Document& document);

} // namespace leafcast::service
