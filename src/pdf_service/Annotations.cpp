// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/Annotations.h"

#include "pdf_service/Document.h"

namespace leafcast::service {

namespace {

    constexpr int MostAnnotations = 100'000;

    void readAnnotation(fz_context* context, const TargetReader& targets, pdf_obj* object, int page,
        Annotation& out)
    {
        out.bounds = boxFromArray(context, pdf_dict_get(context, object, PDF_NAME(Rect)));
        targets.read(object, page, out.target);
        const char* subtype = pdf_dict_get_name(context, object, PDF_NAME(Subtype));
        out.type = QString::fromUtf8(subtype);
    }

} // namespace

std::vector<Annotation> annotationsOfPage(const Document& document, int pageIndex)
{
    fz_context* context = document.context();
    pdf_obj* page = document.pageObject(pageIndex);
    const TargetReader targets(document);
    std::vector<Annotation> result;
    document.mupdf().guarded(ErrorCode::Page, [&] {
        pdf_obj* list = pdf_dict_get(context, page, PDF_NAME(Annots));
        const int count = std::min(pdf_array_len(context, list), MostAnnotations);
        for (int i = 0; i < count; ++i) {
            pdf_obj* object = pdf_array_get(context, list, i);
            if (pdf_is_dict(context, object))
                readAnnotation(context, targets, object, pageIndex, result.emplace_back());
        }
    });
    return result;
}

} // namespace leafcast::service
