// SPDX-License-Identifier: MIT
#include "templates/FlashTemplate.h"

#include "base/FileSteps.h"
#include "support/TemporaryResources.h"

#include <gtest/gtest.h>
#include <QFileInfo>

using namespace Qt::StringLiterals;
using namespace leafcast;

namespace {

class FlashTemplateFilesTest : public testing::Test {
protected:
    FlashTemplateFilesTest()
    {
        resources.addTemplate(u"float"_s, "");
        addTemplateFile(u"style/deep/a.css"_s, "new");
        addTemplateFile(u"demo.png"_s, "new");
        addTemplateFile(u"javascript/jquery-1.7.2.min.js"_s, "jquery");
    }

    void addTemplateFile(const QString& relativePath, const QByteArray& content) const
    {
        resources.addFile(u"AppFiles/Templates/float/"_s + relativePath, content);
    }

    QByteArray content(const QString& relativePath) const
    {
        return FileSteps::read(resources.path(relativePath)).value_or("none");
    }

    TemporaryResources resources;
};

} // namespace

TEST_F(FlashTemplateFilesTest, ReplacesAFolderWhole)
{
    resources.addFile(u"book/style/stale.css"_s, "old");
    FlashTemplate().copyStyleDirToDir(resources.path(u"book/style"_s));
    EXPECT_EQ(content(u"book/style/deep/a.css"_s), "new");
    EXPECT_FALSE(QFileInfo::exists(resources.path(u"book/style/stale.css"_s)));
}

TEST_F(FlashTemplateFilesTest, ReplacesAFileAndLeavesNothingWithoutASource)
{
    const QString target = resources.addFile(u"book/old.js"_s, "old");
    FlashTemplate().copyBookJSFile(target);
    EXPECT_EQ(content(u"book/old.js"_s), "jquery");
    FlashTemplate().copyBookSWFToFile(target);
    EXPECT_FALSE(QFileInfo::exists(target));
}

TEST_F(FlashTemplateFilesTest, KeepsThePicturesThatAreThere)
{
    resources.addFile(u"book/demo.png"_s, "mine");
    addTemplateFile(u"thickness.png"_s, "new");
    FlashTemplate().copyExtfileToDir(resources.path(u"book"_s));
    EXPECT_EQ(content(u"book/demo.png"_s), "mine");
    EXPECT_EQ(content(u"book/thickness.png"_s), "new");
}

TEST_F(FlashTemplateFilesTest, FindsItsPageInItsFolderThenBesideTheTemplates)
{
    FlashTemplate flashTemplate;
    flashTemplate.setHTMLFilePath(u"pages\\book.html"_s);
    EXPECT_EQ(flashTemplate.tmplHTMLFilePath(), u"");
    const QString shared = resources.addFile(u"AppFiles/pages/book.html"_s, "");
    EXPECT_EQ(flashTemplate.tmplHTMLFilePath(), shared);
    addTemplateFile(u"pages/book.html"_s, "");
    EXPECT_EQ(flashTemplate.tmplHTMLFilePath(),
        resources.path(u"AppFiles/Templates/float/pages/book.html"_s));
}

TEST_F(FlashTemplateFilesTest, NamesTheTwoScriptsTheOtherWayRound)
{
    const QString scripts = resources.path(u"AppFiles/Templates/float/javascript/"_s);
    EXPECT_EQ(FlashTemplate().GetThePreviewJSPath(), scripts + u"flipBook.min.js"_s);
    EXPECT_EQ(FlashTemplate().GetTheMainJSPath(), scripts + u"main_preview.js"_s);
}
