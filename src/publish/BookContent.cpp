// SPDX-License-Identifier: MIT
#include "publish/BookContent.h"

#include "publish/FlashBookOutput.h"
#include "templates/PropertyWalk.h"

#include <QDir>

namespace leafcast {

namespace {

    /// Empty above the first.
    QString folderAbove(const QString& relativePath)
    {
        return relativePath.left(qMax(relativePath.lastIndexOf(u'/'), 0));
    }

} // namespace

QStringList BookContent::filesBesidePages(const FlashBookOutput& book)
{
    QStringList files = { book.outputHTMLFileName(), book.jQueryFileName(),
        book.mainScriptFileName(), book.styleFolderName() };
    if (book.wantsReaderData())
        files.append(book.readerDataFileNames());
    forEachProperty(book.flashTemplate()->properties(), [&](const auto& property) {
        if (property.propertyType() == pt_file && !property.value().isEmpty())
            files.append(book.extFileName(property));
    });
    return files;
}

BookContent::BookContent(const FlashBookOutput& book)
{
    QStringList files = filesBesidePages(book) + book.annotationFileNames();
    for (const auto& companion : book.companions())
        files.append(companion.copy);
    for (const auto& page : book.flashPageSource()->normalPages())
        if (page)
            files.append(book.pageFileName(*page));
    const QDir folder(book.saveToFolder());
    for (const QString& file : std::as_const(files))
        add(folder.relativeFilePath(file));
}

void BookContent::add(QString relativePath)
{
    iPaths.insert(relativePath);
    while (!(relativePath = folderAbove(relativePath)).isEmpty())
        iFoldersAbove.insert(relativePath);
}

bool BookContent::contains(const QString& relativePath) const
{
    if (iFoldersAbove.contains(relativePath))
        return true;
    QString path = relativePath;
    while (!path.isEmpty() && !iPaths.contains(path))
        path = folderAbove(path);
    return !path.isEmpty();
}

} // namespace leafcast
