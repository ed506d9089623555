// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/PageTree.h"

#include "pdf_service/Library.h"

#include <algorithm>
#include <unordered_set>

namespace leafcast::service {

namespace {

    // As many as a page range can name; a few bytes of file could ask for billions.
    constexpr size_t MaximumPages = 1'000'000;

    struct Position {
        pdf_obj* kids;
        int next;
    };

    bool isInnerNode(fz_context* context, pdf_obj* node)
    {
        pdf_obj* type = pdf_dict_get(context, node, PDF_NAME(Type));
        if (pdf_name_eq(context, type, PDF_NAME(Page)))
            return false;
        return pdf_is_array(context, pdf_dict_get(context, node, PDF_NAME(Kids)));
    }

} // namespace

struct PageTree::Walk {
    fz_context* context;
    std::vector<int>& pages;
    std::vector<Position> path{};
    std::unordered_set<int> seen{};

    void enter(pdf_obj* node)
    {
        const int number = pdf_to_num(context, node);
        if (number == 0 || seen.insert(number).second)
            path.push_back({ pdf_dict_get(context, node, PDF_NAME(Kids)), 0 });
    }

    void visit(pdf_obj* kid)
    {
        if (isInnerNode(context, kid))
            enter(kid);
        else if (pdf_is_indirect(context, kid)) // without a dictionary: a page that is lost
            pages.push_back(pdf_to_num(context, kid));
    }

    void run(pdf_obj* root)
    {
        enter(root);
        while (!path.empty() && pages.size() < MaximumPages) {
            Position& position = path.back();
            if (position.next < pdf_array_len(context, position.kids))
                visit(pdf_array_get(context, position.kids, position.next++));
            else
                path.pop_back();
        }
    }
};

void PageTree::load(const Library& library, pdf_document* document)
{
    iObjects.clear();
    iIndices.clear();
    fz_context* context = library.context();
    Walk walk{ context, iObjects };
    library.guarded(ErrorCode::Unreadable, [&] {
        pdf_obj* root = pdf_dict_getp(context, pdf_trailer(context, document), "Root/Pages");
        if (!pdf_is_dict(context, root))
            fz_throw(context, FZ_ERROR_GENERIC, "it has no pages");
        walk.run(root);
        pdf_clear_xref(context, document); // the dictionaries of all pages
    });
    for (size_t i = 0; i < iObjects.size(); ++i)
        iIndices.emplace(iObjects[i], static_cast<int>(i));
    number(library, document);
}

int PageTree::indexOf(int objectNumber) const
{
    const auto found = iIndices.find(objectNumber);
    return found == iIndices.end() ? -1 : found->second;
}

// Fills the maps that pdf_load_page_tree would build; that function recurses, gives up on a tree
// with one odd node, and leaves parts of its maps undefined when /Count is too high.
void PageTree::number(const Library& library, pdf_document* document)
{
    fz_context* context = library.context();
    const size_t size = std::max<size_t>(iObjects.size(), 1);
    library.guarded(ErrorCode::Unreadable, [&] {
        document->fwd_page_map = fz_malloc_struct_array(context, size, int);
        document->rev_page_map = fz_malloc_struct_array(context, size, pdf_rev_page_map);
    });
    document->map_page_count = count();
    document->page_map_nesting = 1;
    std::copy(iObjects.begin(), iObjects.end(), document->fwd_page_map);
    pdf_rev_page_map* reverse = document->rev_page_map;
    for (int i = 0; i < count(); ++i)
        reverse[i] = { i, objectOf(i) };
    std::sort(reverse, reverse + count(),
        [](const auto& a, const auto& b) { return a.object < b.object; });
}

} // namespace leafcast::service
