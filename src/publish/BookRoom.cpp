// SPDX-License-Identifier: MIT
#include "publish/BookRoom.h"

#include "base/DataSize.h"
#include "base/FileSteps.h"
#include "base/Sentences.h"
#include "publish/FlashBookOutput.h"
#include "templates/PropertyWalk.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <QFile>
#include <QFileInfo>

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

} // namespace

QString nearestExisting(const QString& absolutePath)
{
    QString path = absolutePath;
    while (!FileSteps::exists(path) && path != QFileInfo(path).path())
        path = QFileInfo(path).path();
    return path;
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

QString roomProblem(qint64 bytesNeeded, const QString& folder, const QString& what)
{
    const std::optional<qint64> available = freeBytes(folder);
    if (!available || bytesNeeded <= *available)
        return {};
    return Sentences::tr(
        "there is no room for %1 in %2: it needs %3 more, and the disk has %4 left")
        .arg(what, folder, dataSize(bytesNeeded), dataSize(*available));
}

} // namespace leafcast
