// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "pdf_service/PrintColour.h"

#include <memory>
#include <mupdf/pdf.h>
#include <unordered_map>

namespace leafcast::service {

/// The CMYK profiles that a document embeds for single pictures and fills (ICCBased colour spaces).
/// The library without colour management would take them all for DeviceCMYK; here each becomes a
/// colour space of its own, with its own converter.
class EmbeddedProfiles {
public:
    explicit EmbeddedProfiles(fz_context* context)
        : iContext(context)
    {
    }
    ~EmbeddedProfiles();
    EmbeddedProfiles(const EmbeddedProfiles&) = delete;
    EmbeddedProfiles& operator=(const EmbeddedProfiles&) = delete;

    /// The space for an array [/ICCBased stream] with four inks; null for anything else, for a
    /// profile that can't be used, and past a number of profiles. Borrowed. May leave with an error
    /// of the library.
    fz_colorspace* spaceFor(pdf_obj* array);

    /// Null when the space is none of these.
    PrintColour* converterOf(const fz_colorspace* space) const;

private:
    struct Entry {
        fz_colorspace* space = nullptr;
        std::unique_ptr<PrintColour> converter{};
    };

    pdf_obj* profileStream(pdf_obj* array) const;
    void add(int object, const fz_buffer* profile, fz_colorspace* space) noexcept;
    fz_buffer* load(pdf_obj* stream) const;

    fz_context* iContext;
    std::unordered_map<int, Entry> iEntries; // by the stream's object number
};

} // namespace leafcast::service
