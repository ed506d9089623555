// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "pdf_service/EmbeddedProfiles.h"
#include "pdf_service/PrintColour.h"

namespace leafcast::service {

class Library;

/// How the inks of one document look: its output intent, else the profile that is installed with
/// Ghostscript; and the profiles that it embeds for single objects.
class PrintColours {
public:
    PrintColours(const Library& library, pdf_document* document);

    PrintColour& of(const fz_colorspace* inks);
    EmbeddedProfiles& embedded() { return iEmbedded; }

private:
    PrintColour iDocument;
    EmbeddedProfiles iEmbedded;
};

} // namespace leafcast::service
