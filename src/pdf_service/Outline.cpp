// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/Outline.h"

#include "pdf_service/Document.h"
#include "pdf_service/Target.h"
#include "pdf_service/TextString.h"

#include <unordered_set>

namespace leafcast::service {

namespace {

    constexpr size_t MostEntries = 100'000;
    constexpr int DeepestLevel = 100;

    struct Waiting {
        pdf_obj* entry;
        int level;
    };

    struct Walk {
        fz_context* context;
        const TargetReader& targets;
        std::vector<OutlineEntry>& entries;
        Target target{};
        std::vector<Waiting> waiting{};
        std::unordered_set<int> seen{};

        void push(pdf_obj* entry, int level)
        {
            if (!pdf_is_dict(context, entry))
                return;
            const int number = pdf_to_num(context, entry);
            if (number == 0 || seen.insert(number).second)
                waiting.push_back({ entry, std::min(level, DeepestLevel) });
        }

        void visit(const Waiting& place)
        {
            target = {};
            targets.read(place.entry, -1, target);
            size_t length = 0;
            const char* label = pdf_dict_get_string(context, place.entry, PDF_NAME(Title), &length);
            OutlineEntry& entry = entries.emplace_back();
            entry.level = place.level;
            entry.page = target.page.value_or(-1);
            entry.label = textFromPDFString(label, length);
        }

        void run(pdf_obj* root)
        {
            push(pdf_dict_get(context, root, PDF_NAME(First)), 1);
            while (!waiting.empty() && entries.size() < MostEntries) {
                const Waiting place = waiting.back();
                waiting.pop_back();
                visit(place);
                push(pdf_dict_get(context, place.entry, PDF_NAME(Next)), place.level);
                push(pdf_dict_get(context, place.entry, PDF_NAME(First)), place.level + 1);
            }
        }
    };

} // namespace

std::vector<OutlineEntry> outlineOf(const Document& document)
{
    fz_context* context = document.context();
    std::vector<OutlineEntry> entries;
    const TargetReader targets(document);
    Walk walk{ context, targets, entries };
    document.mupdf().guarded(ErrorCode::Unreadable, [&] {
        pdf_obj* trailer = pdf_trailer(context, document.pdf());
        walk.run(pdf_dict_getp(context, trailer, "Root/Outlines"));
    });
    return entries;
}

} // namespace leafcast::service
