// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/PageLabels.h"

#include "pdf_service/Library.h"
#include "pdf_service/NumberStyle.h"
#include "pdf_service/TextString.h"
#include "pdf_service/TreeNodes.h"

namespace leafcast::service {

namespace {
    constexpr size_t MaximumRanges = 100'000;
}

struct PageLabels::Reader {
    fz_context* context;
    std::map<int, Range>& ranges;

    void addRange(int firstPage, pdf_obj* entry)
    {
        Range& range = ranges[firstPage];
        range = {};
        range.style = *pdf_dict_get_name(context, entry, PDF_NAME(S));
        pdf_obj* start = pdf_dict_gets(context, entry, "St");
        if (pdf_is_int(context, start))
            range.firstNumber = pdf_to_int(context, start);
        size_t length = 0;
        const char* prefix = pdf_dict_get_string(context, entry, PDF_NAME(P), &length);
        range.prefix = textFromPDFString(prefix, length);
    }

    bool addNode(pdf_obj* node)
    {
        pdf_obj* numbers = pdf_dict_get(context, node, PDF_NAME(Nums));
        const int pairs = pdf_array_len(context, numbers) / 2;
        for (int i = 0; i < pairs && ranges.size() < MaximumRanges; ++i) {
            const int firstPage = pdf_array_get_int(context, numbers, 2 * i);
            addRange(firstPage, pdf_array_get(context, numbers, 2 * i + 1));
        }
        return ranges.size() < MaximumRanges;
    }
};

void PageLabels::load(const Library& library, pdf_document* document)
{
    iRanges.clear();
    fz_context* context = library.context();
    Reader reader{ context, iRanges };
    TreeNodes nodes(context);
    const bool complete = library.attempt([&] {
        nodes.forEach(pdf_dict_getp(context, pdf_trailer(context, document), "Root/PageLabels"),
            [&](pdf_obj* node) { return reader.addNode(node); });
    });
    if (!complete) // wrong labels are worse than none
        iRanges.clear();
}

QString PageLabels::labelOf(int pageIndex) const
{
    auto range = iRanges.upper_bound(pageIndex);
    if (iRanges.empty())
        return {};
    if (range == iRanges.begin()) // the tree should start at page 0
        return QString::number(pageIndex + 1);
    --range;
    const qint64 number = qint64{ range->second.firstNumber } + pageIndex - range->first;
    return range->second.prefix + numberInStyle(number, range->second.style);
}

} // namespace leafcast::service
