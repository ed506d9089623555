// SPDX-License-Identifier: MIT
#include "publish/FlashBookOutput.h"

#include "publish/BookFixture.h"

namespace leafcast {

class FlashBookOutputTest : public BookFixture {
protected:
    /// The relative paths of everything in a folder of the book, sorted, one blank between them.
    QString content(const QString& folder) const
    {
        QStringList paths;
        QDirIterator walk(inBook(folder), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
            QDirIterator::Subdirectories);
        while (walk.hasNext())
            paths.append(QDir(inBook(folder)).relativeFilePath(walk.next()));
        paths.sort();
        return paths.join(u' ');
    }
    const LogCapture log;
};

TEST_F(FlashBookOutputTest, WritesExactlyTheFilesOfABookAndKeepsEarlierPagesAndServer)
{
    for (const QString& stale : { u"javascript/old.js"_s, u"style/old.css"_s, u"iPadPreview"_s,
             u"files/extfile/ImgFileURL.jpg"_s, u"files/extfile/ImgFileURL.bmp"_s,
             u"files/extfile/SoundFile.mp3"_s, u"files/page/9.jpg"_s, u"index.html"_s })
        resources.addFile(u"book/"_s + stale, "old");
    addPage(1, "picture");
    writeBook();
    EXPECT_EQ(content(u""_s),
        u"files files/extfile files/extfile/ImgFileURL.bmp files/page files/page/1.jpg "
        "files/page/9.jpg iPadPreview index.html javascript javascript/jquery-1.7.2.min.js "
        "javascript/main.js style style/page.css");
    EXPECT_EQ(bookFile(u"iPadPreview"_s), "old");
    EXPECT_TRUE(log.lines().isEmpty());
}

TEST_F(FlashBookOutputTest, CopiesChangedPicturesByPageNumberAndRemovesThoseOfPagesWithoutOne)
{
    addPage(7, "picture", u".PNG"_s);
    addPage(5, "picture");
    writeBook();
    EXPECT_EQ(content(u"files/page"_s), u"5.jpg 7.PNG");
    resources.addFile(u"5.jpg"_s, "changed");
    FileSteps::remove(resources.path(u"7.PNG"_s));
    writeBook();
    EXPECT_EQ(content(u"files/page"_s), u"5.jpg");
    EXPECT_EQ(bookFile(u"files/page/5.jpg"_s), "changed");
    EXPECT_EQ(log.lines().size(), 1);
}

TEST_F(FlashBookOutputTest, CopiesTheFilesThatSettingsAndLinksNameButNoLinksFileOverAnOlderOne)
{
    const QString file = resources.addFile(u"in/my logo.PNG"_s, "logo");
    const QString other = resources.addFile(u"in/noise"_s, "sound");
    useProperties(TemporaryResources::property("pt_text", "note", other.toUtf8())
        + TemporaryResources::group("look",
            TemporaryResources::property("pt_file", "LogoFile", file.toUtf8())
                + TemporaryResources::property("pt_file", "sound", other.toUtf8())));
    resources.addFile(u"book/files/pageConfig/noise"_s, "old");
    const auto output = newOutput(u"book.html"_s);
    output->setFlashPagesAnnotations(std::make_shared<FlashPagesAnnotations>());
    output->flashPagesAnnotations()->setNeedFiles({ file, other, u"/nowhere"_s });
    output->ouputTheBook();
    EXPECT_EQ(content(u"files/extfile"_s), u"LogoFile.PNG sound.");
    EXPECT_EQ(content(u"files/pageConfig"_s), u"my logo.PNG noise");
    EXPECT_EQ(bookFile(u"files/pageConfig/noise"_s), "old");
    EXPECT_NE(bookFile(u"book.html"_s), "none");
}

} // namespace leafcast
