// SPDX-License-Identifier: MIT
#include "publish/BookFixture.h"
#include "settings/AppSettings.h"

#include <QCoreApplication>
#include <thread>

namespace leafcast {

class FlashBookOutputScriptTest : public BookFixture {
protected:
    void expectScript(const QByteArray& entries) const
    {
        writeBook();
        EXPECT_EQ(bookFile(u"javascript/main.js"_s),
            "${index.title}\n"
            "function orgt(s) {return binl2hex(core_hx(str2binl(s), s.length * chrsz));}"
            "var bookConfig = {searchColor:\"#00ffff\",searchAlpha:0.3,"
            "SearchButtonVisible:\"false\",BookMarkButtonVisible:\"false\","
                + entries
                + ",normalPath:\"files/page/\",largePath:\"files/page/\",thumbPath:\"files/page/\","
                  "productName:\"Demo created by Leafcast for iPad\","
                  "homePage:\"https://leafcast.example/\"};var pageEditor = [];ols=[]");
    }
};

TEST_F(FlashBookOutputScriptTest, IsExactByteForByte)
{
    const auto property = &TemporaryResources::property;
    useProperties(TemporaryResources::group("look",
        property("pt_number", "pageWidth", "800") + property("pt_color", "ink", "0xaa\xC3\xA9")));
    addPage(1, picture({ 300, 401 }));
    addPage(2, picture({ 10, 10 }));
    expectScript("look:\"\",pageWidth:800,ink:\"#aa\xC3\xA9\","
                 "totalPageCount:2,largePageWidth:300,largePageHeight:401");
}

TEST_F(FlashBookOutputScriptTest, HasTheStoredSizeWithoutPagesAndNoneWithoutThePictureOfPageOne)
{
    AppSettings::shareInstance().setPageWidth(12);
    AppSettings::shareInstance().setPageHeight(34);
    expectScript("totalPageCount:0,largePageWidth:12,largePageHeight:34");
    addPage(5, "no picture");
    expectScript("totalPageCount:1,largePageWidth:0,largePageHeight:0");
}

TEST_F(FlashBookOutputScriptTest, LeavesThePageSizeToTheMainThread)
{
    addPage(1, picture({ 300, 401 }));
    AppSettings& settings = AppSettings::shareInstance();
    settings.setPageWidth(12);
    std::jthread([output = newOutput()] { output->ouputTheBook(); }).join();
    EXPECT_TRUE(bookFile(u"javascript/main.js"_s).contains("largePageWidth:300"));
    EXPECT_EQ(settings.PageWidth(), 12);
    QCoreApplication::processEvents();
    EXPECT_EQ(settings.PageWidth(), 300);
    EXPECT_EQ(settings.PageHeight(), 401);
}

} // namespace leafcast
