// SPDX-License-Identifier: MIT
#include "publish/ReaderDataFile.h"

#include "base/FileSteps.h"
#include "base/Log.h"
#include "base/NotificationCenter.h"
#include "publish/PublishNotifications.h"
#include "publish/ReaderDataWriter.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

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

    // A QSaveFile commits after a short write or a failed last flush all the same.
    bool writeContent(QSaveFile& file, const ReaderBook& book)
    {
        ReaderPages pages(book);
        ReaderDataWriter writer(file);
        while (!pages.atEnd() && !book.pageSource.stop() && writer.isWhole()) {
            writer.addPage(pages.next());
            postProgress(pages);
        }
        writer.finish(outlineOf(book));
        return pages.atEnd() && writer.isWhole() && file.flush();
    }

    QString whyUnwritten(const QSaveFile& file, const ReaderBook& book)
    {
        if (book.pageSource.stop())
            return u"it was stopped"_s;
        return file.error() == QFileDevice::NoError ? u"it could not be written whole"_s
                                                    : file.errorString();
    }

    bool writeTo(const QString& path, const ReaderBook& book)
    {
        QSaveFile file(path);
        if (file.open(QIODevice::WriteOnly) && writeContent(file, book) && file.commit())
            return true;
        LOG_WARN("ReaderDataFile", u"can't write %1: %2"_s.arg(path, whyUnwritten(file, book)));
        return false;
    }

    QByteArray identityOf(const QString& path)
    {
        const QFileInfo file(path);
        return '\n' + path.toUtf8() + '\n' + QByteArray::number(file.size()) + '\n'
            + QByteArray::number(file.lastModified().toMSecsSinceEpoch()) + '\n';
    }

    /// Everything that the file depends on.
    QByteArray fingerprint(const ReaderBook& book)
    {
        QCryptographicHash hash(QCryptographicHash::Sha1);
        hash.addData(book.withLinks ? "links" : "none");
        hash.addData(ReaderDataWriter::outlineText(outlineOf(book)));
        for (const auto& page : book.pageSource.normalPages())
            if (page)
                hash.addData(
                    QByteArray::number(page->pageIndex()) + identityOf(page->pageFilePath()));
        return hash.result().toHex();
    }

    /// In the page source's own work folder, which goes with it; empty for images.
    QString keptFile(const ReaderBook& book)
    {
        const auto& pages = book.pageSource.normalPages();
        if (!book.pageSource.document() || pages.empty() || !pages.front())
            return {};
        const QString folder = QFileInfo(pages.front()->pageFilePath()).path();
        return folder + u"/.reader-data-"_s + QString::fromLatin1(fingerprint(book)) + u".js"_s;
    }

} // namespace

bool ReaderDataFile::write(const ReaderBook& book) const
{
    FileSteps::makeFolders(QFileInfo(iPath).path());
    const bool written = place(book);
    if (!written)
        remove();
    return written;
}

bool ReaderDataFile::place(const ReaderBook& book) const
{
    const QString kept = keptFile(book);
    if (kept.isEmpty())
        return writeTo(iPath, book);
    if (!QFileInfo(kept).isFile() && !writeTo(kept, book))
        return !book.pageSource.stop() && writeTo(iPath, book);
    return FileSteps::replaceFile(kept, iPath);
}

void ReaderDataFile::remove() const
{
    if (!FileSteps::exists(iPath))
        return;
    FileSteps::remove(iPath);
    QDir().rmdir(QFileInfo(iPath).path());
}

} // namespace leafcast
