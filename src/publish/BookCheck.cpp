// SPDX-License-Identifier: MIT
#include "publish/BookCheck.h"

#include "publish/FlashBookOutput.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    bool hasContent(const QString& path)
    {
        const QFileInfo info(path);
        return info.isFile() && info.size() > 0;
    }

    void collectSettingsFiles(
        const FlashBookOutput& book, const FlashTemplateProperties& properties, QStringList& found)
    {
        for (const auto& property : properties) {
            if (!property)
                continue;
            if (property->propertyType() == pt_file && !property->value().isEmpty())
                found.append(book.extFileName(*property));
            collectSettingsFiles(book, property->childProperties(), found);
        }
    }

    QStringList filesBesidePages(const FlashBookOutput& book)
    {
        QStringList files = { book.outputHTMLFileName(), book.mainScriptFileName() };
        if (book.wantsReaderData())
            files.append(book.readerDataFileName());
        collectSettingsFiles(book, book.flashTemplate()->properties(), files);
        return files;
    }

} // namespace

BookCheck::BookCheck(const FlashBookOutput& book)
{
    for (const auto& page : book.flashPageSource()->normalPages())
        if (page && !hasContent(book.pageFileName(*page)))
            pagesWithoutPicture.push_back(page->pageIndex());
    missingFiles = filesBesidePages(book);
    missingFiles.removeIf(hasContent);
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
