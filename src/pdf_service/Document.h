// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "pdf_service/Library.h"
#include "pdf_service/NamedDestinations.h"
#include "pdf_service/PageGeometry.h"
#include "pdf_service/PageLabels.h"
#include "pdf_service/PageTree.h"
#include "pdf_service/PrintColours.h"

#include <memory>
#include <mupdf/pdf.h>
#include <optional>
#include <QString>

namespace leafcast::service {

/// An opened PDF. Page indices are from 0. Throws ServiceError.
class Document {
public:
    Document(const Library& library, const QString& path, const QString& password);
    ~Document();
    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;

    const Library& mupdf() const { return iLibrary; }
    fz_context* context() const { return iLibrary.context(); }
    pdf_document* pdf() const { return iDocument; }

    int pageCount() const { return iPageTree.count(); }
    const PageTree& pageTree() const { return iPageTree; }
    const NamedDestinations& namedDestinations() const;
    const QString& title() const { return iTitle; }
    bool isRepaired() const { return iDocument->repair_attempted != 0; }
    bool isEncrypted() const { return iDocument->crypt != nullptr; }

    QString label(int pageIndex) const;
    /// None for a page that can't be read.
    std::optional<PageGeometry> geometry(int pageIndex) const;
    /// Throws NoPage for an index outside the document, Page when there is nothing at it.
    pdf_obj* pageObject(int pageIndex) const;

    /// Called between requests: drops what the parser and the caches have kept, now and then and
    /// when it has grown, so that a long document needs no more memory than a short one.
    void trimMemory();

private:
    void openFile(const QString& path);
    void close();
    void authenticate(const QString& password) const;
    void readTitle();
    void forgetParsedObjects();

    const Library& iLibrary;
    pdf_document* iDocument = nullptr;
    int iRequestsSinceForgetting = 0;
    PageTree iPageTree;
    QString iTitle;
    std::unique_ptr<PrintColours> iPrintColours;
    mutable std::optional<PageLabels> iLabels; // read when first asked for
    mutable std::optional<NamedDestinations> iNamedDestinations;
};

} // namespace leafcast::service
