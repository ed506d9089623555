// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/LoadedPage.h"

namespace leafcast::service {

LoadedPage::LoadedPage(const Document& document, int pageIndex)
    : iDocument(document)
{
    fz_context* context = document.context();
    pdf_obj* object = document.pageObject(pageIndex);
    document.mupdf().guarded(ErrorCode::Page, [&] {
        iGeometry = PageGeometry::ofPage(context, object);
        iPage = pdf_load_page(context, document.pdf(), pageIndex);
        // Version 1.21 looks the object up with a reference that it then forgets.
        pdf_drop_obj(context, iPage->obj);
        fz_rect ignored{};
        pdf_page_transform(context, iPage, &ignored, &iLibraryPage);
    });
}

LoadedPage::~LoadedPage()
{
    fz_drop_page(iDocument.context(), &iPage->super);
}

void LoadedPage::runContents(fz_device* device, double width, double height) const
{
    pdf_run_page_contents(iDocument.context(), iPage, device, matrix(width, height), nullptr);
}

void LoadedPage::runAnnotations(fz_device* device, double width, double height) const
{
    fz_context* context = iDocument.context();
    const fz_matrix toPicture = matrix(width, height);
    pdf_run_page_annots(context, iPage, device, toPicture, nullptr);
    pdf_run_page_widgets(context, iPage, device, toPicture, nullptr);
}

fz_matrix LoadedPage::matrix(double width, double height) const
{
    return iGeometry.fromLibraryToPicture(iLibraryPage, width, height);
}

} // namespace leafcast::service
