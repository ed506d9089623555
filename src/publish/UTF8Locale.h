// SPDX-License-Identifier: MIT
#pragma once

#include <clocale>
#include <locale.h>

namespace leafcast {

/// Makes UTF-8 the encoding of this thread's C library calls while it lives, whatever the user's
/// language settings say. libarchive asks them how the names in an archive are written.
class UTF8Locale {
public:
    UTF8Locale()
    {
        if (iLocale)
            iFormer = uselocale(iLocale);
    }
    ~UTF8Locale()
    {
        if (!iLocale)
            return;
        uselocale(iFormer);
        freelocale(iLocale);
    }
    UTF8Locale(const UTF8Locale&) = delete;
    UTF8Locale& operator=(const UTF8Locale&) = delete;

private:
    locale_t iLocale = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    locale_t iFormer = nullptr;
};

} // namespace leafcast
