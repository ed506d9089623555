// SPDX-License-Identifier: MIT
#include "cli/DiskRoom.h"

#include "base/FileSteps.h"
#include "cli/DataSize.h"
#include "cli/ExitCode.h"
#include "cli/OutputPlace.h"
#include "publish/FlashBookOutput.h"
#include "templates/PropertyWalk.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <QFile>
#include <QFileInfo>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    constexpr qint64 roomForTheRest = 1 << 20; // scripts, styles, reader data of a short book

    /// None when the system can't tell, as it happens in containers.
    std::optional<qint64> freeBytes(const QString& folder)
    {
        std::error_code error;
        const auto space = std::filesystem::space(QFile::encodeName(folder).toStdString(), error);
        return error ? std::nullopt : std::optional(static_cast<qint64>(space.available));
    }

    bool areOnOneDisk(const QString& folder, const QString& other)
    {
        struct stat first { };
        struct stat second { };
        return stat(QFile::encodeName(folder).constData(), &first) == 0
            && stat(QFile::encodeName(other).constData(), &second) == 0
            && first.st_dev == second.st_dev;
    }

    qint64 bytesBesidePages(const FlashBookOutput& writer)
    {
        qint64 needed = roomForTheRest;
        for (const auto& companion : writer.companions())
            needed += QFileInfo(companion.source).size();
        forEachProperty(writer.flashTemplate()->properties(), [&needed](const auto& property) {
            if (property.propertyType() == pt_file && !property.value().isEmpty())
                needed += QFileInfo(property.value()).size();
        });
        return needed;
    }

    qint64 bytesForBook(const FlashBookOutput& writer)
    {
        const qint64 besidePages = bytesBesidePages(writer);
        qint64 needed = besidePages;
        qint64 largest = 0; // a picture is written beside the one that it replaces
        for (const auto& page : writer.flashPageSource()->normalPages()) {
            const qint64 size = QFileInfo(page->pageFilePath()).size();
            needed += size - QFileInfo(writer.pageFileName(*page)).size();
            largest = std::max(largest, size);
        }
        return std::max(needed, besidePages) + largest;
    }

    // An older archive goes only when the new one is there.
    qint64 bytesForArchive(const FlashBookOutput& writer)
    {
        qint64 needed = bytesBesidePages(writer);
        for (const auto& page : writer.flashPageSource()->normalPages())
            needed += QFileInfo(page->pageFilePath()).size();
        return needed;
    }

    void require(qint64 needed, const QString& folder, const QString& what)
    {
        const std::optional<qint64> available = freeBytes(folder);
        if (available && needed > *available)
            throw CommandFailure(ExitCode::OutputNotWritable,
                u"there is no room for %1 in %2: it needs %3 more, and the disk has %4 left"_s.arg(
                    what, folder, dataSize(needed), dataSize(*available)));
    }

} // namespace

QString nearestExisting(const QString& absolutePath)
{
    QString path = absolutePath;
    while (!FileSteps::exists(path) && path != QFileInfo(path).path())
        path = QFileInfo(path).path();
    return path;
}

void requireRoom(const OutputPlace& place, const FlashBookOutput& writer)
{
    const QString folder = nearestExisting(place.folder());
    const qint64 forBook = bytesForBook(writer);
    if (!place.archive())
        return require(forBook, folder, u"the book"_s);
    const QString archiveFolder = nearestExisting(place.archive()->folder());
    const qint64 forArchive = bytesForArchive(writer);
    if (areOnOneDisk(folder, archiveFolder))
        return require(forBook + forArchive, folder, u"the book and its archive"_s);
    require(forBook, folder, u"the book"_s);
    require(forArchive, archiveFolder, u"the archive"_s);
}

} // namespace leafcast
