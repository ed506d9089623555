// SPDX-License-Identifier: MIT
#include "preview_server/ServedFolder.h"

#include <cerrno>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <system_error>

namespace leafcast::preview {

namespace {

    constexpr const char* IndexPage = "index.html";

    // Without O_NONBLOCK opening a named pipe would wait for its writer.
    constexpr int FileFlags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    constexpr int FolderFlags = O_RDONLY | O_NOFOLLOW | O_DIRECTORY | O_CLOEXEC;

    Lookup failedLookup()
    {
        const bool exhausted = errno == EMFILE || errno == ENFILE || errno == ENOMEM;
        return { exhausted ? Lookup::Result::TooManyFiles : Lookup::Result::Nothing, {} };
    }

    // The inode too: a page that is written anew within a tick of the clock is another file.
    std::string versionOf(const struct stat& status)
    {
        char text[80];
        const int length = std::snprintf(text, sizeof text, "%llx-%llx-%llx.%lx",
            static_cast<unsigned long long>(status.st_ino),
            static_cast<unsigned long long>(status.st_size),
            static_cast<unsigned long long>(status.st_mtim.tv_sec),
            static_cast<unsigned long>(status.st_mtim.tv_nsec));
        return { text, static_cast<size_t>(length) };
    }

} // namespace

ServedFolder::ServedFolder(const char* path)
    : iRoot(open(path, O_RDONLY | O_DIRECTORY | O_CLOEXEC))
{
    if (!iRoot)
        throw std::system_error(errno, std::generic_category(), "the folder can't be read");
}

Lookup ServedFolder::find(const RequestPath& path) const
{
    std::vector<std::string> names = path.names;
    if (names.empty() || path.endsWithSlash)
        names.emplace_back(names.empty() ? pageOfRoot() : IndexPage);
    FileDescriptor folder;
    for (size_t i = 0; i + 1 < names.size(); ++i) {
        const int parent = folder ? folder.get() : iRoot.get();
        FileDescriptor next(openat(parent, names[i].c_str(), FolderFlags));
        if (!next)
            return failedLookup();
        folder = std::move(next);
    }
    return findIn(folder ? folder.get() : iRoot.get(), names.back());
}

Lookup ServedFolder::findIn(int folder, const std::string& name) const
{
    struct stat status { };
    // Looked at before it is opened: opening a device can have effects.
    if (fstatat(folder, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0)
        return failedLookup();
    if (S_ISDIR(status.st_mode))
        return { Lookup::Result::Folder, {} };
    if (!S_ISREG(status.st_mode))
        return {};
    FileDescriptor file(openat(folder, name.c_str(), FileFlags));
    if (!file)
        return failedLookup();
    if (fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode))
        return {};
    return { Lookup::Result::File,
        { std::move(file), name, status.st_size, status.st_mtim, versionOf(status) } };
}

std::string ServedFolder::pageOfRoot() const
{
    if (faccessat(iRoot.get(), IndexPage, F_OK, AT_SYMLINK_NOFOLLOW) == 0)
        return IndexPage;
    const int copy = openat(iRoot.get(), ".", FolderFlags);
    const std::unique_ptr<DIR, int (*)(DIR*)> entries(
        copy < 0 ? nullptr : fdopendir(copy), closedir);
    std::string page;
    while (const dirent* entry = entries ? readdir(entries.get()) : nullptr) {
        const std::string_view name = entry->d_name;
        if (name.starts_with('.') || !name.ends_with(".html"))
            continue;
        if (!page.empty())
            return IndexPage;
        page = name;
    }
    return page.empty() ? IndexPage : page;
}

} // namespace leafcast::preview
