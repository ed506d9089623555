// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <mupdf/pdf.h>
#include <optional>
#include <QString>

namespace leafcast::service {

class Document;

/// Where a link or an outline entry leads.
struct Target {
    std::optional<QString> url; // of an action that opens something on the web
    std::optional<int> page; // index; -1 when there is a destination that leads nowhere
};

/// Reads the targets of a document's links and outline entries: destinations (explicit, named, in
/// /Dest or a GoTo action) and actions. Throws nothing of its own.
class TargetReader {
public:
    explicit TargetReader(const Document& document);

    /// Of an annotation or an outline entry on the given page (-1 for none). Inside
    /// Library::guarded() only.
    void read(pdf_obj* object, int currentPage, Target& target) const;

private:
    void readAction(pdf_obj* action, int currentPage, Target& target) const;
    void readAddress(pdf_obj* address, Target& target) const;
    void readFile(pdf_obj* file, Target& target) const;
    void readNamedAction(pdf_obj* name, int currentPage, Target& target) const;
    int pageOfDestination(pdf_obj* destination) const;
    pdf_obj* namedDestination(pdf_obj* name) const;
    int pageOfElement(pdf_obj* element) const;

    const Document& iDocument;
    fz_context* iContext;
    QString iBaseURL; // of the catalogue's /URI entry
};

} // namespace leafcast::service
