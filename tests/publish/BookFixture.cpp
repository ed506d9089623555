// SPDX-License-Identifier: MIT
#include "publish/BookFixture.h"

#include "base/FileSteps.h"

#include <QDir>
#include <QDirIterator>
#include <QImage>

using namespace Qt::StringLiterals;

namespace leafcast {

BookFixture::BookFixture()
{
    const QString templateFolder = u"AppFiles/Templates/float/"_s;
    resources.addFile(templateFolder + u"index.html"_s, "<title>${index.title}</title>\n");
    resources.addFile(templateFolder + u"javascript/main_preview.js"_s, "var player = 1;\n");
    resources.addFile(templateFolder + u"javascript/jquery-1.7.2.min.js"_s, "jquery");
    resources.addFile(templateFolder + u"style/page.css"_s, "css");
    resources.addFile(u"Lib/iPadPreview"_s, "server");
    useProperties("");
    QDir().mkpath(resources.path(u"book"_s));
    QDir().mkpath(resources.path(u"pictures"_s));
}

void BookFixture::useProperties(const QByteArray& properties)
{
    resources.addTemplate(u"float"_s, properties);
    flashTemplate = std::make_shared<FlashTemplate>();
}

void BookFixture::addPicture(QSize size) const
{
    constexpr int dotsPerMetreAt72Dpi = 2835;
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    image.setDotsPerMeterX(dotsPerMetreAt72Dpi);
    image.setDotsPerMeterY(dotsPerMetreAt72Dpi);
    const QString file = pictureFile(static_cast<int>(pageSource->pages().size()) + 1);
    if (!image.save(file, "JPG"))
        qFatal("can't write %s", qPrintable(file));
    pageSource->addImgPageFromFile(file);
    pageSource->generateNormalPages();
}

QString BookFixture::pictureFile(int number) const
{
    return resources.path(u"pictures/picture %1.jpg"_s.arg(number));
}

std::unique_ptr<FlashBookOutput> BookFixture::newOutput(const QString& fileName) const
{
    return std::make_unique<FlashBookOutput>(
        pageSource, flashTemplate, resources.path(u"book"_s), fileName);
}

QString BookFixture::inBook(const QString& relativePath) const
{
    return resources.path(u"book/"_s + relativePath);
}

QByteArray BookFixture::bookFile(const QString& relativePath) const
{
    QFile file(inBook(relativePath));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : "none"_ba;
}

QStringList BookFixture::bookContent() const
{
    const QDir book(inBook(u""_s));
    QStringList content;
    QDirIterator walk(book.path(), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
        QDirIterator::Subdirectories);
    while (walk.hasNext())
        content.append(book.relativeFilePath(walk.next()));
    content.sort();
    return content;
}

} // namespace leafcast
