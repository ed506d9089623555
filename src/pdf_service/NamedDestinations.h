// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <mupdf/pdf.h>
#include <QByteArray>
#include <QHash>

namespace leafcast::service {

class Library;

/// The named destinations of a document, of the catalogue's /Dests dictionary as well as of its
/// name tree, read once. The values stay unresolved.
class NamedDestinations {
public:
    NamedDestinations() = default;
    ~NamedDestinations();
    NamedDestinations(const NamedDestinations&) = delete;
    NamedDestinations& operator=(const NamedDestinations&) = delete;

    void load(const Library& library, pdf_document* document);

    /// Null when there is none of that name. Borrowed.
    pdf_obj* find(const QByteArray& name) const { return iValues.value(name, nullptr); }

private:
    struct Reader;

    fz_context* iContext = nullptr;
    QHash<QByteArray, pdf_obj*> iValues;
};

} // namespace leafcast::service
