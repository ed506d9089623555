// SPDX-License-Identifier: MIT
#pragma once

#include "publish/ArchiveFailure.h"
#include "publish/UTF8Locale.h"

#include <archive.h>
#include <memory>
#include <QSaveFile>

namespace leafcast {

/// Writes one .zip. It holds no times, owners or other traces of the machine, so that the same
/// entries make the same bytes everywhere. The file appears whole at commit(); until then an older
/// one stays. Entries may be larger than 4 GiB and more than 65,535. Everything throws
/// ArchiveFailure. One thread, from the beginning to the end.
class ZipWriter {
public:
    explicit ZipWriter(const QString& path);
    ~ZipWriter() = default;
    ZipWriter(const ZipWriter&) = delete;
    ZipWriter& operator=(const ZipWriter&) = delete;

    /// Names are relative, with "/" between folders.
    void addFolder(const QString& name);
    /// A regular file's content, and whether its owner may run it.
    void addFile(const QString& name, const QString& path);
    void commit();

private:
    using Entry = std::unique_ptr<archive_entry, void (*)(archive_entry*)>;

    /// The file below the archive. It takes blocks after a failure too, and drops them: told of
    /// one, libarchive would not free its buffers.
    struct Output {
        QSaveFile file;
        QString failure;

        void write(const char* bytes, qint64 size);
    };

    static la_ssize_t writeBlock(archive*, void* output, const void* bytes, size_t size);
    static Entry makeEntry(const QString& name);
    void addHeader(archive_entry* entry);
    void addContent(int file, qint64 size, const QString& path);
    /// Throws for a call of libarchive that did not succeed, or for a block that was lost in it.
    void require(bool succeeded) const;

    UTF8Locale iLocale;
    Output iOutput;
    std::unique_ptr<archive, int (*)(archive*)> iArchive;
};

} // namespace leafcast
