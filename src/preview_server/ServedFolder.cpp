// SPDX-License-Identifier: MIT
#include "preview_server/ServedFolder.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <linux/openat2.h>
#include <memory>
#include <sys/syscall.h>
#include <system_error>

namespace leafcast::preview {

namespace {

    constexpr const char* IndexPage = "index.html";

    // Without O_NONBLOCK opening a named pipe would wait for its writer; without O_NOCTTY a
    // terminal would become ours.
    constexpr int FileFlags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    constexpr int FolderFlags = O_RDONLY | O_NOFOLLOW | O_DIRECTORY | O_CLOEXEC;

    Lookup failedLookup()
    {
        const bool exhausted = errno == EMFILE || errno == ENFILE || errno == ENOMEM;
        return { exhausted ? Lookup::Result::TooManyFiles : Lookup::Result::Nothing, {} };
    }

    // Empty when it can't be told.
    std::string fullPath(const char* path)
    {
        const std::unique_ptr<char, void (*)(void*)> full(realpath(path, nullptr), std::free);
        return full ? full.get() : std::string();
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
    , iPath(fullPath(path))
{
    if (!iRoot)
        throw std::system_error(errno, std::generic_category(), "the folder can't be read");
}

Lookup ServedFolder::find(const RequestPath& path) const
{
    const FileDescriptor successor = openSuccessor();
    const int root = successor ? successor.get() : iRoot.get();
    std::vector<std::string> names = path.names;
    if (names.empty() || path.endsWithSlash)
        names.emplace_back(names.empty() ? pageOf(root) : IndexPage);
    FileDescriptor file = openBeneath(root, names);
    if (!file)
        return failedLookup();
    struct stat status { };
    if (fstat(file.get(), &status) != 0)
        return {};
    if (S_ISDIR(status.st_mode))
        return { Lookup::Result::Folder, {} };
    if (!S_ISREG(status.st_mode))
        return {};
    return { Lookup::Result::File,
        { std::move(file), names.back(), status.st_size, status.st_mtim, versionOf(status) } };
}

FileDescriptor ServedFolder::openSuccessor() const
{
    struct stat status { };
    if (fstat(iRoot.get(), &status) != 0 || status.st_nlink > 0)
        return {};
    return FileDescriptor(open(iPath.c_str(), FolderFlags));
}

FileDescriptor ServedFolder::openBeneath(int root, const std::vector<std::string>& names)
{
    std::string path;
    for (const std::string& name : names)
        path += (path.empty() ? "" : "/") + name;
    open_how how{};
    how.flags = FileFlags;
    how.resolve = RESOLVE_BENEATH | RESOLVE_NO_SYMLINKS;
    const long opened = syscall(SYS_openat2, root, path.c_str(), &how, sizeof how);
    // Kernels before 5.6 don't know it, some sandboxes don't allow it.
    const bool unknown = opened < 0 && (errno == ENOSYS || errno == EPERM);
    return unknown ? openStepByStep(root, names) : FileDescriptor(static_cast<int>(opened));
}

FileDescriptor ServedFolder::openStepByStep(int root, const std::vector<std::string>& names)
{
    FileDescriptor folder;
    for (size_t i = 0; i < names.size(); ++i) {
        const int parent = folder ? folder.get() : root;
        const int flags = i + 1 < names.size() ? FolderFlags : FileFlags;
        folder = FileDescriptor(openat(parent, names[i].c_str(), flags));
        if (!folder)
            break;
    }
    return folder;
}

std::string ServedFolder::pageOf(int root)
{
    if (faccessat(root, IndexPage, F_OK, AT_SYMLINK_NOFOLLOW) == 0)
        return IndexPage;
    const int copy = openat(root, ".", FolderFlags);
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
