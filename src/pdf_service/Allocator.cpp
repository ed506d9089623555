// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/Allocator.h"

#include <cstdlib>
#include <malloc.h>

namespace leafcast::service {

Allocator::Allocator(size_t ceiling)
    : iHooks{ this, allocate, reallocate, release }
    , iCeiling(ceiling)
{
}

void* Allocator::allocate(void* self, size_t size)
{
    return reallocate(self, nullptr, size);
}

void* Allocator::reallocate(void* self, void* block, size_t size)
{
    auto* allocator = static_cast<Allocator*>(self);
    const size_t before = malloc_usable_size(block);
    if (size > before && allocator->iUsed + (size - before) > allocator->iCeiling)
        return nullptr;
    void* result = std::realloc(block, size);
    if (result != nullptr)
        allocator->iUsed += malloc_usable_size(result) - before;
    return result;
}

void Allocator::release(void* self, void* block)
{
    static_cast<Allocator*>(self)->iUsed -= malloc_usable_size(block);
    std::free(block);
}

} // namespace leafcast::service
