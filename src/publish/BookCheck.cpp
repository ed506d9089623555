// SPDX-License-Identifier: MIT
#include "publish/BookCheck.h"

#include "publish/BookContent.h"
#include "publish/FlashBookOutput.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    bool hasContent(const QString& path)
    {
        const QFileInfo info(path);
        return info.isDir() ? !QDir(path).isEmpty() : info.isFile() && info.size() > 0;
    }

    QStringList installedCompanions(const FlashBookOutput& book)
    {
        QStringList files;
        for (const auto& companion : book.companions())
            if (!companion.source.isEmpty())
                files.append(companion.copy);
        return files;
    }

    QStringList absences(const FlashBookOutput& book)
    {
        QStringList clauses;
        for (const auto& companion : book.companions())
            if (companion.source.isEmpty() && !hasContent(companion.copy))
                clauses.append(companion.absence);
        return clauses;
    }

} // namespace

BookCheck::BookCheck(const FlashBookOutput& book)
    : notShipped(absences(book))
{
    const QStringList& failures = book.failedFiles();
    const QSet<QString> failed(failures.begin(), failures.end());
    const auto isWritten
        = [&failed](const QString& path) { return !failed.contains(path) && hasContent(path); };

    QSet<QString> pictures;
    for (const auto& page : book.flashPageSource()->normalPages()) {
        if (!page)
            continue;
        pictures.insert(book.pageFileName(*page));
        if (!isWritten(book.pageFileName(*page)))
            pagesWithoutPicture.push_back(page->pageIndex());
    }
    missingFiles = BookContent::filesBesidePages(book) + installedCompanions(book) + failures;
    missingFiles.removeDuplicates();
    missingFiles.removeIf(
        [&](const QString& path) { return pictures.contains(path) || isWritten(path); });
}

bool isBookFolder(const QString& path)
{
    if (!QFileInfo(path + u"/files/page"_s).isDir())
        return false;
    QFile script(path + u"/javascript/main.js"_s);
    return script.open(QIODevice::ReadOnly) && script.readAll().contains("var bookConfig = {");
}

bool isBookPackage(const QString& path)
{
    return path.endsWith(u".app"_s) && isBookFolder(path + u"/Contents/Resources"_s);
}

} // namespace leafcast
