// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/NamedDestinations.h"

#include "pdf_service/Library.h"
#include "pdf_service/TreeNodes.h"

namespace leafcast::service {

namespace {
    constexpr qsizetype MaximumNames = 500'000;
}

struct NamedDestinations::Reader {
    fz_context* context;
    QHash<QByteArray, pdf_obj*>& values;

    bool isFull() const { return values.size() >= MaximumNames; }

    // The name is copied only after the last call into the library that can fail.
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

    bool addNode(pdf_obj* node)
    {
        pdf_obj* names = pdf_dict_get(context, node, PDF_NAME(Names));
        for (int i = 0; i + 1 < pdf_array_len(context, names) && !isFull(); i += 2) {
            size_t length = 0;
            const char* name = pdf_array_get_string(context, names, i, &length);
            add(name, length, pdf_array_get(context, names, i + 1));
        }
        return !isFull();
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
    Reader reader{ iContext, iValues };
    TreeNodes nodes(iContext);
    // What was read before a broken node is as good as without it.
    (void)library.attempt([&] {
        pdf_obj* root = pdf_dict_get(iContext, pdf_trailer(iContext, document), PDF_NAME(Root));
        reader.addDictionary(pdf_dict_get(iContext, root, PDF_NAME(Dests)));
        nodes.forEach(pdf_dict_getp(iContext, root, "Names/Dests"),
            [&](pdf_obj* node) { return reader.addNode(node); });
    });
}

} // namespace leafcast::service
