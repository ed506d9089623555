// SPDX-License-Identifier: MIT
#pragma once

#include "base/FileSteps.h"
#include "pages/FlashPageSourceImg.h"
#include "publish/FlashBookOutput.h"
#include "support/LogCapture.h"
#include "support/TemporaryResources.h"
#include "support/TestPicture.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QDirIterator>

namespace leafcast {

using namespace Qt::StringLiterals;

/// A template, pictures and an empty book folder, all in one temporary folder.
class BookFixture : public testing::Test {
protected:
    BookFixture()
    {
        for (const QString& file : { u"index.html"_s, u"javascript/main_preview.js"_s,
                 u"javascript/jquery-1.7.2.min.js"_s, u"style/page.css"_s })
            resources.addFile(templateFolder + file, "${index.title}\n");
        resources.addFile(u"Lib/iPadPreview"_s, "server");
        useProperties("");
        QDir().mkpath(inBook());
    }

    void useProperties(const QByteArray& properties)
    {
        resources.addTemplate(u"float"_s, properties);
        flashTemplate = std::make_shared<FlashTemplate>();
    }

    static QByteArray picture(QSize size, double dotsPerInch = 72, const char* format = "JPG")
    {
        return testPicture(size, dotsPerInch, format);
    }

    /// Adds "1.jpg" or another file as a page of that number, from 1.
    void addPage(int number, const QByteArray& bytes, const QString& extension = u".jpg"_s) const
    {
        const QString file = resources.addFile(QString::number(number) + extension, bytes);
        pageSource->pages().push_back(std::make_shared<FlashPage>(file, number));
        pageSource->generateNormalPages();
    }

    /// What is published; "index.html" unless a name is given.
    std::unique_ptr<FlashBookOutput> newOutput(const QString& name = {}) const
    {
        return std::make_unique<FlashBookOutput>(pageSource, flashTemplate, inBook(), name);
    }
    void writeBook() const { newOutput()->ouputTheBook(); }

    QString inBook(const QString& path = {}) const { return resources.path(u"book/"_s + path); }
    /// "none" when there is no such file.
    QByteArray bookFile(const QString& path) const
    {
        return FileSteps::read(inBook(path)).value_or("none");
    }

    TemporaryResources resources;
    const QByteArray readerData = TemporaryResources::property("pt_bool", "readerData", "YES");
    const QString templateFolder = u"AppFiles/Templates/float/"_s;
    std::shared_ptr<FlashPageSourceImg> pageSource = std::make_shared<FlashPageSourceImg>();
    std::shared_ptr<FlashTemplate> flashTemplate;
};

} // namespace leafcast
