// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "pdf_service/Allocator.h"
#include "pdf_service/ServiceError.h"

#include <exception>
#include <mupdf/fitz.h>

namespace leafcast::service {

/// Owns one object of the PDF library.
template <typename T, void (*drop)(fz_context*, T*)> class Held {
public:
    explicit Held(fz_context* context)
        : iContext(context)
    {
    }
    ~Held() { drop(iContext, iObject); }
    Held(const Held&) = delete;
    Held& operator=(const Held&) = delete;

    void take(T* object) { iObject = object; }
    T* get() const { return iObject; }
    T* operator->() const { return iObject; }

private:
    fz_context* iContext;
    T* iObject = nullptr;
};

using HeldDevice = Held<fz_device, fz_drop_device>;
using HeldPixmap = Held<fz_pixmap, fz_drop_pixmap>;

/// The context of the PDF library. Its errors jump over stack frames without running destructors,
/// so whatever calls the library does so inside guarded(), in a function (mostly a lambda) that
/// holds no object with a destructor while it calls; containers live outside and are filled by
/// reference. C++ exceptions may leave the call.
class Library {
public:
    Library();
    ~Library();
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    fz_context* context() const { return iContext; }
    size_t bytesInUse() const { return iAllocator.used(); }

    /// Runs the call; an error of the library becomes a ServiceError with the given code, or with
    /// Memory when it ran out of that.
    template <typename Call> void guarded(ErrorCode code, Call&& call) const
    {
        if (!attempt(call))
            throwCaught(code);
    }

    /// As guarded(), but answers false instead of throwing.
    template <typename Call> [[nodiscard, gnu::noinline]] bool attempt(Call&& call) const
    {
        bool done = true;
        std::exception_ptr thrown;
        run(call, &done, &thrown);
        if (thrown)
            std::rethrow_exception(thrown);
        return done;
    }

    /// Drops cached fonts, images and glyphs.
    void emptyCaches() const;

private:
    template <typename Call>
    [[gnu::noinline]] void run(Call& call, bool* done, std::exception_ptr* thrown) const
    {
        fz_try(iContext)
        {
            try {
                call();
            } catch (...) {
                *thrown = std::current_exception();
            }
        }
        fz_catch(iContext)
        {
            *done = false;
        }
    }

    [[noreturn]] void throwCaught(ErrorCode code) const;

    Allocator iAllocator;
    fz_context* iContext;
};

} // namespace leafcast::service
