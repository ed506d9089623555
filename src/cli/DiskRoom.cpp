// SPDX-License-Identifier: MIT
#include "cli/DiskRoom.h"

#include "cli/ExitCode.h"
#include "cli/OutputPlace.h"
#include "publish/BookRoom.h"

#include <QFile>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    bool areOnOneDisk(const QString& folder, const QString& other)
    {
        struct stat first { };
        struct stat second { };
        return stat(QFile::encodeName(folder).constData(), &first) == 0
            && stat(QFile::encodeName(other).constData(), &second) == 0
            && first.st_dev == second.st_dev;
    }

    void require(qint64 needed, const QString& folder, const QString& what)
    {
        if (const QString problem = roomProblem(needed, folder, what); !problem.isEmpty())
            throw CommandFailure(ExitCode::OutputNotWritable, problem);
    }

} // namespace

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
