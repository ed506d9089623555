// SPDX-License-Identifier: MIT
#include "publish/BookArchive.h"

#include "base/FolderWalk.h"
#include "base/Log.h"
#include "publish/ZipWriter.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace leafcast {

BookArchive::BookArchive(const QString& book)
    : iBook(QDir::cleanPath(QFileInfo(book).absoluteFilePath()))
{
}

bool BookArchive::writeTo(const QString& path) const
{
    const QString top = QFileInfo(iBook).fileName();
    const std::vector<Entry> all = entries();
    const auto total = static_cast<int>(all.size());
    ZipWriter zip(path);
    zip.addFolder(top);
    for (int done = 0; done < total; ++done) {
        if (iStopped)
            return false;
        const Entry& entry = all[static_cast<size_t>(done)];
        if (entry.isFolder)
            zip.addFolder(top + u'/' + entry.path);
        else
            zip.addFile(top + u'/' + entry.path, iBook + u'/' + entry.path);
        iProgress(done + 1, total);
    }
    zip.commit();
    return true;
}

std::vector<BookArchive::Entry> BookArchive::entries() const
{
    std::vector<Entry> all;
    collect(QString(), all);
    return all;
}

void BookArchive::collect(const QString& folder, std::vector<Entry>& entries) const
{
    const QFileInfo itself(iBook + u'/' + folder);
    if (!itself.isReadable() || !itself.isExecutable()) // would look empty
        throw ArchiveFailure(u"the folder %1 can't be read"_s.arg(itself.filePath()));
    for (const QString& name : FolderWalk::entryNames(itself.filePath())) {
        const QString path = folder + name;
        const QFileInfo info(iBook + u'/' + path);
        if (!iBelongs(path))
            continue;
        if (info.isSymLink() || !(info.isFile() || info.isDir())) {
            LOG_WARN("BookArchive",
                u"left %1 out of the archive: it is neither a file nor a folder"_s.arg(
                    info.filePath()));
            continue;
        }
        entries.push_back({ path, info.isDir() });
        if (info.isDir())
            collect(path + u'/', entries);
    }
}

} // namespace leafcast
