// SPDX-License-Identifier: MIT
#include "publish/ZipWriter.h"

#include "base/FileDescriptor.h"
#include "base/SystemError.h"

#include <archive_entry.h>
#include <array>
#include <fcntl.h>
#include <QFileInfo>
#include <QSet>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    constexpr mode_t permissionsOfFiles = 0644;
    constexpr mode_t permissionsOfFoldersAndPrograms = 0755;
    constexpr size_t bufferSize = 1 << 16;

    /// Squeezing these a second time costs time and saves nothing.
    bool isCompressed(const QString& name)
    {
        static const QSet<QString> suffixes{ u"jpg"_s, u"jpeg"_s, u"png"_s, u"gif"_s, u"webp"_s,
            u"avif"_s, u"mp3"_s, u"m4a"_s, u"aac"_s, u"ogg"_s, u"oga"_s, u"opus"_s, u"mp4"_s,
            u"m4v"_s, u"webm"_s, u"woff"_s, u"woff2"_s, u"zip"_s, u"gz"_s };
        return suffixes.contains(QFileInfo(name).suffix().toLower());
    }

    /// Of a QSaveFile written short it is the system that knows the reason.
    QString reasonOf(const QFileDevice& file)
    {
        return errno ? systemErrorText() : file.errorString();
    }

    [[noreturn]] void failReading(const QString& path, const QString& reason)
    {
        throw ArchiveFailure(u"%1 can't be read: %2"_s.arg(path, reason));
    }

} // namespace

void ZipWriter::Output::write(const char* bytes, qint64 size)
{
    errno = 0;
    if (failure.isEmpty() && file.write(bytes, size) != size)
        failure = reasonOf(file);
}

la_ssize_t ZipWriter::writeBlock(archive*, void* output, const void* bytes, size_t size)
{
    static_cast<Output*>(output)->write(static_cast<const char*>(bytes), static_cast<qint64>(size));
    return static_cast<la_ssize_t>(size);
}

ZipWriter::ZipWriter(const QString& path)
    : iOutput{ .file = QSaveFile(path), .failure = {} }
    , iArchive(archive_write_new(), archive_write_free)
{
    if (!iOutput.file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        throw ArchiveFailure(iOutput.file.errorString());
    archive* const zip = iArchive.get();
    require(archive_write_set_format_zip(zip) == ARCHIVE_OK
        && archive_write_set_bytes_per_block(zip, bufferSize) == ARCHIVE_OK
        && archive_write_set_bytes_in_last_block(zip, 1) == ARCHIVE_OK
        && archive_write_open2(zip, &iOutput, nullptr, writeBlock, nullptr, nullptr) == ARCHIVE_OK);
}

void ZipWriter::require(bool succeeded) const
{
    if (!iOutput.failure.isEmpty())
        throw ArchiveFailure(iOutput.failure);
    if (!succeeded)
        throw ArchiveFailure(QString::fromUtf8(archive_error_string(iArchive.get())));
}

ZipWriter::Entry ZipWriter::makeEntry(const QString& name)
{
    Entry entry(archive_entry_new(), archive_entry_free);
    archive_entry_set_pathname_utf8(entry.get(), name.toUtf8().constData());
    return entry;
}

// Without a time an entry gets the earliest that the format knows, in every time zone.
void ZipWriter::addHeader(archive_entry* entry)
{
    require(archive_write_header(iArchive.get(), entry) == ARCHIVE_OK);
}

void ZipWriter::addFolder(const QString& name)
{
    const Entry entry = makeEntry(name + u'/');
    archive_entry_set_filetype(entry.get(), AE_IFDIR);
    archive_entry_set_perm(entry.get(), permissionsOfFoldersAndPrograms);
    addHeader(entry.get());
}

void ZipWriter::addFile(const QString& name, const QString& path)
{
    const FileDescriptor file(
        open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status { };
    if (!file.isOpen() || fstat(file.get(), &status) != 0)
        failReading(path, systemErrorText());
    if (!S_ISREG(status.st_mode))
        failReading(path, u"it is not a regular file"_s);

    const Entry entry = makeEntry(name);
    archive_entry_set_filetype(entry.get(), AE_IFREG);
    archive_entry_set_perm(entry.get(),
        status.st_mode & S_IXUSR ? permissionsOfFoldersAndPrograms : permissionsOfFiles);
    archive_entry_set_size(entry.get(), status.st_size);
    const auto setCompression = isCompressed(name) ? archive_write_zip_set_compression_store
                                                   : archive_write_zip_set_compression_deflate;
    require(setCompression(iArchive.get()) == ARCHIVE_OK);
    addHeader(entry.get());
    addContent(file.get(), status.st_size, path);
}

void ZipWriter::addContent(int file, qint64 size, const QString& path)
{
    std::array<char, bufferSize> buffer;
    qint64 added = 0;
    for (;;) {
        const ssize_t got = ::read(file, buffer.data(), buffer.size());
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            failReading(path, systemErrorText());
        added += got;
        if (added > size || (got == 0 && added < size))
            failReading(path, u"it was changed meanwhile"_s);
        if (got == 0)
            return;
        require(archive_write_data(iArchive.get(), buffer.data(), static_cast<size_t>(got)) == got);
    }
}

void ZipWriter::commit()
{
    require(archive_write_close(iArchive.get()) == ARCHIVE_OK);
    errno = 0;
    if (!iOutput.file.flush() || !iOutput.file.commit())
        throw ArchiveFailure(reasonOf(iOutput.file));
}

} // namespace leafcast
