// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <mupdf/pdf.h>
#include <unordered_set>
#include <vector>

namespace leafcast::service {

/// The nodes of a name tree or number tree (ISO 32000, 7.9.6 and 7.9.7) in order, without recursion
/// and none twice: files nest such trees deeply or close them to loops. The object is made outside
/// Library::guarded(), and used inside.
class TreeNodes {
public:
    explicit TreeNodes(fz_context* context)
        : iContext(context)
    {
    }

    /// Calls visit(node) for the root and all below it until it answers false.
    template <typename Visit> void forEach(pdf_obj* root, Visit&& visit)
    {
        iWaiting.assign(1, root);
        while (!iWaiting.empty()) {
            pdf_obj* node = iWaiting.back();
            iWaiting.pop_back();
            if (!visit(node))
                return;
            pushKids(node);
        }
    }

private:
    void pushKids(pdf_obj* node);

    fz_context* iContext;
    std::vector<pdf_obj*> iWaiting;
    std::unordered_set<int> iSeen;
};

} // namespace leafcast::service
