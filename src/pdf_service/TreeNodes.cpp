// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/TreeNodes.h"

namespace leafcast::service {

void TreeNodes::pushKids(pdf_obj* node)
{
    pdf_obj* kids = pdf_dict_get(iContext, node, PDF_NAME(Kids));
    for (int i = pdf_array_len(iContext, kids) - 1; i >= 0; --i) {
        pdf_obj* kid = pdf_array_get(iContext, kids, i);
        const int number = pdf_to_num(iContext, kid);
        if (number != 0 && iSeen.insert(number).second)
            iWaiting.push_back(kid);
    }
}

} // namespace leafcast::service
