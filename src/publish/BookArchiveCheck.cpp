// SPDX-License-Identifier: MIT
#include "publish/BookArchiveCheck.h"

#include "publish/UTF8Locale.h"

#include <archive.h>
#include <archive_entry.h>
#include <memory>
#include <QFileInfo>
#include <string_view>

namespace leafcast {

namespace {

    constexpr size_t blockSize = 1 << 14;

    std::string_view nameOf(archive_entry* entry)
    {
        const char* name = archive_entry_pathname(entry);
        return name ? name : "";
    }

    archive_entry* nextEntry(archive* zip)
    {
        archive_entry* entry = nullptr;
        const int result = archive_read_next_header(zip, &entry);
        return result == ARCHIVE_OK || result == ARCHIVE_WARN ? entry : nullptr;
    }

    /// A name without its top folder, and without the folders between a package and its book.
    std::string_view nameInBook(std::string_view name)
    {
        constexpr std::string_view bookInPackage = "Contents/Resources/";
        const size_t slash = name.find('/');
        name.remove_prefix(slash == std::string_view::npos ? name.size() : slash + 1);
        if (name.starts_with(bookInPackage))
            name.remove_prefix(bookInPackage.size());
        return name;
    }

} // namespace

bool isBookArchive(const QString& path)
{
    if (!QFileInfo(path).isFile()) // a pipe would wait for its writer
        return false;
    const UTF8Locale locale;
    const std::unique_ptr<archive, int (*)(archive*)> zip(archive_read_new(), archive_read_free);
    archive_read_support_format_zip_seekable(zip.get());
    if (archive_read_open_filename(zip.get(), QFile::encodeName(path).constData(), blockSize)
        != ARCHIVE_OK)
        return false;
    bool hasScript = false;
    bool hasPage = false;
    while (archive_entry* entry = nextEntry(zip.get())) {
        const std::string_view name = nameInBook(nameOf(entry));
        hasScript |= name == "javascript/main.js";
        hasPage |= name.starts_with("files/page/");
    }
    return hasScript && hasPage;
}

} // namespace leafcast
