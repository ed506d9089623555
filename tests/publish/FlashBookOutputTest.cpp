// SPDX-License-Identifier: MIT
#include "publish/FlashBookOutput.h"

#include "base/FileSteps.h"
#include "publish/BookFixture.h"
#include "support/LogCapture.h"

#include <gmock/gmock.h>
#include <QDateTime>
#include <QDir>

using namespace Qt::StringLiterals;
using namespace leafcast;
using testing::ElementsAre;

namespace {

const auto property = &TemporaryResources::property;

class FlashBookOutputTest : public BookFixture { };

} // namespace

TEST_F(FlashBookOutputTest, WritesExactlyTheFilesOfABook)
{
    addPicture({ 30, 40 });
    addPicture({ 30, 40 });
    const LogCapture log;
    writeBook();
    EXPECT_THAT(bookContent(),
        ElementsAre(u"files"_s, u"files/extfile"_s, u"files/page"_s, u"files/page/1.jpg"_s,
            u"files/page/2.jpg"_s, u"iPadPreview"_s, u"index.html"_s, u"javascript"_s,
            u"javascript/jquery-1.7.2.min.js"_s, u"javascript/main.js"_s, u"style"_s,
            u"style/page.css"_s));
    EXPECT_EQ(bookFile(u"index.html"_s), "<title>${index.title}</title>\n");
    EXPECT_EQ(bookFile(u"files/page/2.jpg"_s), FileSteps::read(pictureFile(2)));
    EXPECT_THAT(log.lines(), ElementsAre());
}

TEST_F(FlashBookOutputTest, WritesNothingWithoutItsFolder)
{
    addPicture({ 30, 40 });
    ASSERT_TRUE(QDir(inBook(u""_s)).removeRecursively());
    writeBook();
    EXPECT_FALSE(QFileInfo::exists(inBook(u""_s)));
}

TEST_F(FlashBookOutputTest, GeneratesThePageUnderTheGivenName)
{
    const auto output = newOutput(u"book.html"_s);
    auto config = std::make_shared<HTMLConfigInfo>();
    config->setHTMLTitle(u"Trees"_s);
    output->setHTMLConfig(config);
    output->ouputTheBook();
    EXPECT_EQ(output->outputFileName(), inBook(u"book.html"_s));
    EXPECT_EQ(bookFile(u"book.html"_s), "<title>Trees</title>");
    EXPECT_FALSE(QFileInfo::exists(inBook(u"index.html"_s)));
}

TEST_F(FlashBookOutputTest, ReplacesWhatAnEarlierOutputLeftExceptPagesAndServer)
{
    for (const auto* stale : { u"javascript/old.js", u"style/old.css",
             u"files/extfile/ImgFileURL.jpg", u"files/extfile/ImgFileURL.png",
             u"files/extfile/ImgFileURL.gif", u"files/extfile/LogoFile.jpg",
             u"files/extfile/LogoFile.png", u"files/extfile/LogoFile.bmp",
             u"files/extfile/LogoFile.gif", u"files/extfile/SoundFile.mp3",
             u"files/extfile/ImgFileURL.bmp", u"files/page/9.jpg", u"iPadPreview", u"index.html" })
        resources.addFile(u"book/"_s + QString::fromUtf16(stale), "old");
    addPicture({ 30, 40 });
    writeBook();
    EXPECT_THAT(bookContent(),
        ElementsAre(u"files"_s, u"files/extfile"_s, u"files/extfile/ImgFileURL.bmp"_s,
            u"files/page"_s, u"files/page/1.jpg"_s, u"files/page/9.jpg"_s, u"iPadPreview"_s,
            u"index.html"_s, u"javascript"_s, u"javascript/jquery-1.7.2.min.js"_s,
            u"javascript/main.js"_s, u"style"_s, u"style/page.css"_s));
    EXPECT_EQ(bookFile(u"iPadPreview"_s), "old");
    EXPECT_EQ(bookFile(u"index.html"_s), "<title>${index.title}</title>\n");
}

TEST_F(FlashBookOutputTest, NamesPicturesByPageNumberAndKeepsTheirExtension)
{
    for (const int number : { 7, 5 }) {
        const QString file
            = resources.addFile(u"p/%1.PNG"_s.arg(number), QByteArray::number(number));
        pageSource->normalPages().push_back(std::make_shared<FlashPage>(file, number));
    }
    writeBook();
    EXPECT_EQ(bookFile(u"files/page/5.PNG"_s), "5");
    EXPECT_EQ(bookFile(u"files/page/7.PNG"_s), "7");
}

TEST_F(FlashBookOutputTest, CopiesAChangedPictureAndLeavesAnUnchangedOneAlone)
{
    addPicture({ 30, 40 });
    addPicture({ 30, 40 });
    writeBook();
    const auto stamp
        = QFileInfo(inBook(u"files/page/1.jpg"_s)).fileTime(QFile::FileMetadataChangeTime);
    resources.addFile(u"pictures/picture 2.jpg"_s, "changed");
    writeBook();
    EXPECT_EQ(
        QFileInfo(inBook(u"files/page/1.jpg"_s)).fileTime(QFile::FileMetadataChangeTime), stamp);
    EXPECT_EQ(bookFile(u"files/page/2.jpg"_s), "changed");
}

TEST_F(FlashBookOutputTest, RemovesThePictureOfAPageThatHasNoneAnyMoreAndGoesOn)
{
    for (int page = 0; page < 3; ++page)
        addPicture({ 30, 40 });
    writeBook();
    QFile::remove(pictureFile(2));
    const LogCapture log;
    writeBook();
    EXPECT_EQ(bookFile(u"files/page/2.jpg"_s), "none");
    EXPECT_NE(bookFile(u"files/page/3.jpg"_s), "none");
    EXPECT_THAT(log.lines(),
        ElementsAre(u"WARN FileSteps: can't copy %1: it is not a file"_s.arg(pictureFile(2))));
}

TEST_F(FlashBookOutputTest, CopiesTheFilesThatSettingsNameOnEveryLevel)
{
    useProperties(property("pt_file", "LogoFile", "") + property("pt_text", "note", "")
        + TemporaryResources::group("look",
            property("pt_file", "back", "")
                + TemporaryResources::group("deep", property("pt_file", "sound", ""))));
    flashTemplate->setPropertyValue(u"LogoFile"_s, resources.addFile(u"in/my logo.PNG"_s, "logo"));
    flashTemplate->setPropertyValue(u"note"_s, resources.addFile(u"in/note.txt"_s, "note"));
    flashTemplate->setPropertyValue(u"back"_s, resources.addFile(u"in/back.jpg"_s, "back"));
    flashTemplate->setPropertyValue(u"sound"_s, resources.addFile(u"in/noise"_s, "sound"));
    writeBook();
    const QDir extFiles(inBook(u"files/extfile"_s));
    EXPECT_THAT(extFiles.entryList(QDir::Files, QDir::Name),
        ElementsAre(u"LogoFile.PNG"_s, u"back.jpg"_s, u"sound."_s));
    EXPECT_EQ(bookFile(u"files/extfile/LogoFile.PNG"_s), "logo");

    QFile::remove(resources.path(u"in/back.jpg"_s));
    flashTemplate->setPropertyValue(u"LogoFile"_s, resources.path(u"in"_s));
    flashTemplate->setPropertyValue(u"sound"_s, u""_s);
    const LogCapture log;
    writeBook();
    EXPECT_THAT(extFiles.entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name),
        ElementsAre(u"LogoFile.PNG"_s, u"sound."_s));
    EXPECT_EQ(log.lines().size(), 2);
}

TEST_F(FlashBookOutputTest, CopiesTheFilesThatLinksNeedButNotOverOlderOnes)
{
    auto annotations = std::make_shared<FlashPagesAnnotations>();
    annotations->setNeedFiles({ resources.addFile(u"in/a.txt"_s, "a"),
        resources.addFile(u"in/b.txt"_s, "b"), resources.path(u"in/missing.txt"_s) });
    resources.addFile(u"book/files/pageConfig/b.txt"_s, "old");
    const auto output = newOutput();
    output->setFlashPagesAnnotations(annotations);
    const LogCapture log;
    output->ouputTheBook();
    EXPECT_EQ(bookFile(u"files/pageConfig/a.txt"_s), "a");
    EXPECT_EQ(bookFile(u"files/pageConfig/b.txt"_s), "old");
    EXPECT_THAT(log.lines(), ElementsAre());
}

TEST_F(FlashBookOutputTest, MakesTheFolderOfLinkFilesForABookWithLinksOnly)
{
    const auto output = newOutput();
    output->setFlashPagesAnnotations(std::make_shared<FlashPagesAnnotations>());
    output->ouputTheBook();
    EXPECT_TRUE(QFileInfo(inBook(u"files/pageConfig"_s)).isDir());
}

TEST_F(FlashBookOutputTest, TellsBookRelativeAddressesOfAPage)
{
    const FlashPage page(u"/p/q.r/s.Jpeg"_s, 12);
    const auto output = newOutput();
    EXPECT_EQ(output->getNormalPageURL(page), u"page/12.Jpeg");
    EXPECT_EQ(output->getZoomedPageURL(page), u"page/12.Jpeg");
    EXPECT_EQ(output->getThumbPageURL(page), u"page/12.Jpeg");
    EXPECT_EQ(output->outputSWFName(), inBook(u"book.swf"_s));
    EXPECT_EQ(FlashBookOutput::colorWithHexString(u"0x1a2b3c4d"_s), 0x1a2b3c4dU);
}

TEST_F(FlashBookOutputTest, SurvivesAFileWhereAFolderMustBe)
{
    resources.addFile(u"book/files"_s, "in the way");
    addPicture({ 30, 40 });
    const LogCapture log;
    writeBook();
    EXPECT_EQ(bookFile(u"files"_s), "in the way");
    EXPECT_NE(bookFile(u"javascript/main.js"_s), "none");
    EXPECT_FALSE(log.lines().isEmpty());
}
