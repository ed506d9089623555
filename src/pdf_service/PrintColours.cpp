// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/PrintColours.h"

#include "pdf_service/Library.h"
#include "pdf_service/ProfileSearch.h"

namespace leafcast::service {

namespace {

    PrintColour documentColour(const Library& library, pdf_document* document)
    {
        PrintColour intent(outputIntentProfile(library, document));
        return intent.hasProfile() ? std::move(intent) : PrintColour(installedProfile());
    }

} // namespace

PrintColours::PrintColours(const Library& library, pdf_document* document)
    : iDocument(documentColour(library, document))
    , iEmbedded(library.context())
{
}

PrintColour& PrintColours::of(const fz_colorspace* inks)
{
    PrintColour* embedded = iEmbedded.converterOf(inks);
    return embedded != nullptr ? *embedded : iDocument;
}

} // namespace leafcast::service
