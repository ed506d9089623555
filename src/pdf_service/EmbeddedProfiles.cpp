// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/EmbeddedProfiles.h"

namespace leafcast::service {

namespace {
    constexpr size_t MostProfiles = 32;
}

EmbeddedProfiles::~EmbeddedProfiles()
{
    for (const auto& [object, entry] : iEntries)
        fz_drop_colorspace(iContext, entry.space);
}

fz_colorspace* EmbeddedProfiles::spaceFor(pdf_obj* array)
{
    pdf_obj* stream = profileStream(array);
    if (stream == nullptr)
        return nullptr;
    const int object = pdf_to_num(iContext, stream);
    const auto known = iEntries.find(object);
    if (known != iEntries.end())
        return known->second.space;
    if (iEntries.size() >= MostProfiles)
        return nullptr;
    fz_buffer* profile = load(stream);
    add(object, profile, fz_new_colorspace(iContext, FZ_COLORSPACE_CMYK, 0, 4, "ICCBased"));
    fz_drop_buffer(iContext, profile);
    return iEntries[object].space;
}

PrintColour* EmbeddedProfiles::converterOf(const fz_colorspace* space) const
{
    for (const auto& [object, entry] : iEntries) {
        if (entry.space == space)
            return entry.converter.get();
    }
    return nullptr;
}

pdf_obj* EmbeddedProfiles::profileStream(pdf_obj* array) const
{
    pdf_obj* stream = pdf_array_get(iContext, array, 1);
    const bool four
        = pdf_name_eq(iContext, pdf_array_get(iContext, array, 0), PDF_NAME(ICCBased)) != 0
        && pdf_dict_get_int(iContext, stream, PDF_NAME(N)) == 4;
    return four && pdf_to_num(iContext, stream) > 0 ? stream : nullptr;
}

fz_buffer* EmbeddedProfiles::load(pdf_obj* stream) const
{
    fz_buffer* buffer = nullptr;
    fz_var(buffer);
    fz_try(iContext)
    {
        buffer = pdf_load_stream(iContext, stream);
    }
    fz_catch(iContext)
    {
        fz_rethrow_if(iContext, FZ_ERROR_MEMORY);
        buffer = nullptr;
    }
    return buffer;
}

void EmbeddedProfiles::add(int object, const fz_buffer* profile, fz_colorspace* space) noexcept
{
    unsigned char* bytes = nullptr;
    const size_t size = profile == nullptr
        ? 0
        : fz_buffer_storage(iContext, const_cast<fz_buffer*>(profile), &bytes);
    Entry entry;
    entry.converter = std::make_unique<PrintColour>(
        QByteArray(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(size)));
    if (entry.converter->hasProfile())
        entry.space = space;
    else
        fz_drop_colorspace(iContext, space);
    iEntries.emplace(object, std::move(entry));
}

} // namespace leafcast::service
