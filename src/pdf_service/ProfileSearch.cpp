// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/ProfileSearch.h"

#include "pdf_service/Library.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace leafcast::service {

namespace {

    using HeldBuffer = Held<fz_buffer, fz_drop_buffer>;

    constexpr int MostIntents = 16;

    // The first output intent with a profile of four inks.
    pdf_obj* printIntent(fz_context* context, pdf_document* document)
    {
        pdf_obj* intents
            = pdf_dict_getp(context, pdf_trailer(context, document), "Root/OutputIntents");
        for (int i = 0; i < std::min(pdf_array_len(context, intents), MostIntents); ++i) {
            pdf_obj* profile = pdf_dict_get(
                context, pdf_array_get(context, intents, i), PDF_NAME(DestOutputProfile));
            if (pdf_dict_get_int(context, profile, PDF_NAME(N)) == 4)
                return profile;
        }
        return nullptr;
    }

} // namespace

QByteArray outputIntentProfile(const Library& library, pdf_document* document)
{
    fz_context* context = library.context();
    HeldBuffer buffer(context);
    const bool read = library.attempt([&] {
        pdf_obj* profile = printIntent(context, document);
        if (profile != nullptr)
            buffer.take(pdf_load_stream(context, profile));
    });
    if (!read || buffer.get() == nullptr)
        return {};
    unsigned char* bytes = nullptr;
    const size_t size = fz_buffer_storage(context, buffer.get(), &bytes);
    return QByteArray(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(size));
}

QByteArray installedProfile()
{
    QFile file(u"/usr/share/color/icc/ghostscript/default_cmyk.icc"_s);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace leafcast::service
