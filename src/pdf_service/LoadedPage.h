// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "pdf_service/Document.h"

namespace leafcast::service {

/// A page with its annotations, ready to be run through a device. Throws ServiceError.
class LoadedPage {
public:
    LoadedPage(const Document& document, int pageIndex);
    ~LoadedPage();
    LoadedPage(const LoadedPage&) = delete;
    LoadedPage& operator=(const LoadedPage&) = delete;

    const Document& document() const { return iDocument; }
    const PageGeometry& geometry() const { return iGeometry; }

    /// Runs the page through the device, mapped onto a picture of the displayed page. Inside
    /// Library::guarded() only: contents fail as a whole, an annotation that fails is left out.
    void runContents(fz_device* device, double width, double height) const;
    void runAnnotations(fz_device* device, double width, double height) const;

private:
    fz_matrix matrix(double width, double height) const;

    const Document& iDocument;
    pdf_page* iPage = nullptr;
    PageGeometry iGeometry;
    fz_matrix iLibraryPage{};
};

} // namespace leafcast::service
