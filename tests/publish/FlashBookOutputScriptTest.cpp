// SPDX-License-Identifier: MIT
#include "base/FileSteps.h"
#include "publish/BookFixture.h"
#include "settings/AppSettings.h"
#include "support/LogCapture.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace leafcast;

namespace {

const auto property = &TemporaryResources::property;

class FlashBookOutputScriptTest : public BookFixture {
protected:
    QByteArray script() const
    {
        writeBook();
        return bookFile(u"javascript/main.js"_s);
    }
};

/// Between these two stand the template's entries and the numbers of pages and pixels.
const QByteArray head
    = "var player = 1;\n"
      "function orgt(s) {return binl2hex(core_hx(str2binl(s), s.length * chrsz));}"
      "var bookConfig = {searchColor:\"#00ffff\",searchAlpha:0.3,"
      "SearchButtonVisible:\"false\",BookMarkButtonVisible:\"false\",";
const QByteArray tail
    = "normalPath:\"files/page/\",largePath:\"files/page/\",thumbPath:\"files/page/\","
      "productName:\"Demo created by Leafcast for iPad\",homePage:\"https://leafcast.example/\"};"
      "var pageEditor = [];ols=[]";

} // namespace

TEST_F(FlashBookOutputScriptTest, IsExactByteForByte)
{
    useProperties(TemporaryResources::group("look",
        property("pt_number", "pageWidth", "800") + property("pt_color", "ink", "0xaa\xC3\xA9")));
    addPicture({ 300, 401 });
    addPicture({ 10, 10 });
    EXPECT_EQ(script(),
        head + "look:\"\",pageWidth:800,ink:\"#aa\xC3\xA9\","
            + "totalPageCount:2,largePageWidth:300,largePageHeight:401," + tail);
    EXPECT_EQ(AppSettings::shareInstance().PageWidth(), 300);
    EXPECT_EQ(AppSettings::shareInstance().PageHeight(), 401);
}

TEST_F(FlashBookOutputScriptTest, KeepsTheStoredSizeForABookWithoutPages)
{
    AppSettings::shareInstance().setPageWidth(12);
    AppSettings::shareInstance().setPageHeight(34);
    EXPECT_EQ(script(), head + "totalPageCount:0,largePageWidth:12,largePageHeight:34," + tail);
}

TEST_F(FlashBookOutputScriptTest, HasNoSizeWithoutAPictureOfPageOne)
{
    pageSource->pages().push_back(std::make_shared<FlashPage>(u"/nowhere/5.jpg"_s, 5));
    pageSource->normalPages() = pageSource->pages();
    EXPECT_EQ(script(), head + "totalPageCount:1,largePageWidth:0,largePageHeight:0," + tail);
    EXPECT_EQ(AppSettings::shareInstance().PageWidth(), 0);
}

TEST_F(FlashBookOutputScriptTest, IsNotWrittenWithoutTheTemplatesScriptButTheSizeIsStored)
{
    addPicture({ 300, 401 });
    const QString source = resources.path(u"AppFiles/Templates/float/javascript/main_preview.js"_s);
    for (const bool missing : { false, true }) {
        resources.addFile(
            u"AppFiles/Templates/float/javascript/main_preview.js"_s, "not UTF-8: \xE9");
        if (missing)
            FileSteps::remove(source);
        AppSettings::shareInstance().setPageWidth(1);
        const LogCapture log;
        EXPECT_EQ(script(), "none");
        EXPECT_EQ(AppSettings::shareInstance().PageWidth(), 300);
        EXPECT_EQ(log.lines().size(), 1);
    }
}
