// SPDX-License-Identifier: MIT
#include "publish/ReaderDataFiles.h"

#include "base/FileSteps.h"
#include "base/Log.h"
#include "base/NotificationCenter.h"
#include "publish/OutputLock.h"
#include "publish/PublishNotifications.h"
#include "publish/ReaderDataScript.h"
#include "publish/ReaderDataWriter.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QThread>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    constexpr int retryMilliseconds = 20;

    std::vector<ReaderOutlineItem> outlineOf(const ReaderBook& book)
    {
        if (!book.outline)
            return {};
        return readerOutline(book.outline->items(), BookPlaces(book.pageSource.normalPages()));
    }

    void postProgress(const ReaderPages& pages)
    {
        NotificationCenter::defaultCenter().post(ReaderDataProgressMSG,
            { { u"pageIndex"_s, pages.position() }, { u"totalPage"_s, pages.count() } });
    }

    QByteArray identityOf(const QString& path)
    {
        const QFileInfo file(path);
        return '\n' + path.toUtf8() + '\n' + QByteArray::number(file.size()) + '\n'
            + QByteArray::number(file.lastModified().toMSecsSinceEpoch()) + '\n';
    }

    /// Everything that the files depend on.
    QByteArray fingerprint(const ReaderBook& book)
    {
        QCryptographicHash hash(QCryptographicHash::Sha1);
        hash.addData(book.withLinks ? "links" : "none");
        hash.addData(ReaderDataScript::outline(outlineOf(book)));
        for (const auto& page : book.pageSource.normalPages())
            if (page)
                hash.addData(
                    QByteArray::number(page->pageIndex()) + identityOf(page->pageFilePath()));
        return hash.result().toHex();
    }

    /// The page source's own, where its pictures lie; empty for images, whose folder is the user's.
    QString workFolder(const FlashPageSource& source)
    {
        const auto& pages = source.normalPages();
        if (!source.document() || pages.empty() || !pages.front())
            return {};
        return QFileInfo(pages.front()->pageFilePath()).path();
    }

    /// A preview and a publication read the text of the same PDF, which answers one at a time.
    /// False when the book is not wanted any more.
    bool waitForTurn(const OutputLock& lock, const FlashPageSource& source)
    {
        while (!lock.take()) {
            if (source.stop())
                return false;
            QThread::msleep(retryMilliseconds);
        }
        return true;
    }

} // namespace

bool ReaderDataFiles::write(const ReaderBook& book) const
{
    const bool written = place(book);
    if (!written)
        remove();
    return written;
}

void ReaderDataFiles::remove() const
{
    for (const QString& file : paths())
        if (FileSteps::exists(file))
            FileSteps::remove(file);
    QDir().rmdir(iFolder);
}

QString ReaderDataFiles::bookFile() const
{
    return path(ReaderDataWriter::bookFileName);
}

QStringList ReaderDataFiles::paths() const
{
    QStringList all = { bookFile() };
    for (const QString& name : textFiles())
        all.append(path(name));
    return all;
}

bool ReaderDataFiles::place(const ReaderBook& book) const
{
    const QString folder = workFolder(book.pageSource);
    if (folder.isEmpty())
        return make(book);
    const OutputLock lock(folder);
    if (!waitForTurn(lock, book.pageSource))
        return false;
    const ReaderDataFiles kept(
        folder + u"/.reader-data-"_s + QString::fromLatin1(fingerprint(book)));
    if (QFileInfo(kept.bookFile()).isFile() || kept.make(book))
        return copyFrom(kept);
    kept.remove();
    return !book.pageSource.stop() && make(book);
}

bool ReaderDataFiles::make(const ReaderBook& book) const
{
    FileSteps::makeFolders(iFolder);
    ReaderPages pages(book);
    ReaderDataWriter writer(iFolder);
    while (!pages.atEnd() && !book.pageSource.stop() && writer.isWhole()) {
        writer.addPage(pages.next());
        postProgress(pages);
    }
    if (!pages.atEnd()) {
        if (writer.isWhole())
            LOG_WARN("ReaderDataFiles", u"can't write into %1: it was stopped"_s.arg(iFolder));
        return false;
    }
    const bool written = writer.finish(outlineOf(book));
    removeTextFilesBut(writer.textFiles());
    return written;
}

bool ReaderDataFiles::copyFrom(const ReaderDataFiles& kept) const
{
    FileSteps::makeFolders(iFolder);
    const QStringList texts = kept.textFiles();
    removeTextFilesBut(texts);
    for (const QString& name : texts)
        if (!FileSteps::replaceFile(kept.path(name), path(name)))
            return false;
    return FileSteps::replaceFile(kept.bookFile(), bookFile());
}

QStringList ReaderDataFiles::textFiles() const
{
    static const QRegularExpression ours(u"^text-[1-9][0-9]*\\.js$"_s);
    return QDir(iFolder).entryList(QDir::Files).filter(ours);
}

void ReaderDataFiles::removeTextFilesBut(const QStringList& names) const
{
    for (const QString& name : textFiles())
        if (!names.contains(name))
            FileSteps::remove(path(name));
}

} // namespace leafcast
