// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/Library.h"

namespace leafcast::service {

namespace {

    constexpr size_t MemoryCeiling = size_t{ 512 } << 20U;
    constexpr size_t CacheLimit = size_t{ 24 } << 20U;

    // A broken file can give one warning for each of its bytes.
    void ignoreMessage(void*, const char*) { }

} // namespace

Library::Library()
    : iAllocator(MemoryCeiling)
    , iContext(fz_new_context(iAllocator.hooks(), nullptr, CacheLimit))
{
    if (iContext == nullptr)
        throw std::bad_alloc();
    fz_set_warning_callback(iContext, ignoreMessage, nullptr);
    fz_set_error_callback(iContext, ignoreMessage, nullptr);
}

Library::~Library()
{
    fz_drop_context(iContext);
}

void Library::emptyCaches() const
{
    fz_empty_store(iContext);
}

void Library::throwCaught(ErrorCode code) const
{
    const bool memory = fz_caught(iContext) == FZ_ERROR_MEMORY;
    const char* text = fz_caught_message(iContext);
    throw ServiceError(memory ? ErrorCode::Memory : code,
        memory ? QStringLiteral("it needs more memory than is allowed") : QString::fromUtf8(text));
}

} // namespace leafcast::service
