// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/NamedDestinations.h"

#include "pdf_service/Library.h"

#include <unordered_set>
#include <vector>

namespace leafcast::service {

namespace {
    constexpr qsizetype MaximumNames = 500'000;
}

struct NamedDestinations::Walk {
    fz_context* context;
    QHash<QByteArray, pdf_obj*>& values;
    std::vector<pdf_obj*> waiting{};
    std::unordered_set<int> seen{};

    bool isFull() const { return values.size() >= MaximumNames; }

    // The name is copied only after the last call into the library.
    void add(const char* name, size_t length, pdf_obj* value)
    {
        pdf_obj*& slot = values[QByteArray(name, static_cast<qsizetype>(length))];
        if (slot == nullptr)
            slot = pdf_keep_obj(context, value);
    }

    void addDictionary(pdf_obj* dictionary)
    {
        for (int i = 0; i < pdf_dict_len(context, dictionary) && !isFull(); ++i) {
            const char* name = pdf_to_name(context, pdf_dict_get_key(context, dictionary, i));
            add(name, strlen(name), pdf_dict_get_val(context, dictionary, i));
        }
    }

    void visit(pdf_obj* node)
    {
        pdf_obj* names = pdf_dict_get(context, node, PDF_NAME(Names));
        for (int i = 0; i + 1 < pdf_array_len(context, names) && !isFull(); i += 2) {
            size_t length = 0;
            const char* name = pdf_array_get_string(context, names, i, &length);
            add(name, length, pdf_array_get(context, names, i + 1));
        }
        pdf_obj* kids = pdf_dict_get(context, node, PDF_NAME(Kids));
        for (int i = pdf_array_len(context, kids) - 1; i >= 0; --i)
            push(pdf_array_get(context, kids, i));
    }

    void push(pdf_obj* node)
    {
        const int number = pdf_to_num(context, node);
        if (number != 0 && seen.insert(number).second)
            waiting.push_back(node);
    }

    void addTree(pdf_obj* root)
    {
        visit(root);
        while (!waiting.empty() && !isFull()) {
            pdf_obj* node = waiting.back();
            waiting.pop_back();
            visit(node);
        }
    }
};

NamedDestinations::~NamedDestinations()
{
    for (pdf_obj* value : std::as_const(iValues))
        pdf_drop_obj(iContext, value);
}

void NamedDestinations::load(const Library& library, pdf_document* document)
{
    iContext = library.context();
    Walk walk{ iContext, iValues };
    // What was read before a broken node is as good as without it.
    (void)library.attempt([&] {
        pdf_obj* root = pdf_dict_get(iContext, pdf_trailer(iContext, document), PDF_NAME(Root));
        walk.addDictionary(pdf_dict_get(iContext, root, PDF_NAME(Dests)));
        walk.addTree(pdf_dict_getp(iContext, root, "Names/Dests"));
    });
}

} // namespace leafcast::service
