// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <cstddef>
#include <mupdf/fitz.h>

namespace leafcast::service {

/// The memory of the PDF library, with a ceiling. Beyond it an allocation fails; the library then
/// empties its caches, tries again, and ends what it was doing when that does not help.
class Allocator {
public:
    explicit Allocator(size_t ceiling);
    Allocator(const Allocator&) = delete;
    Allocator& operator=(const Allocator&) = delete;

    const fz_alloc_context* hooks() const { return &iHooks; }
    size_t used() const { return iUsed; }

private:
    static void* allocate(void* self, size_t size);
    static void* reallocate(void* self, void* block, size_t size);
    static void release(void* self, void* block);

    fz_alloc_context iHooks;
    size_t iCeiling;
    size_t iUsed = 0;
};

} // namespace leafcast::service
