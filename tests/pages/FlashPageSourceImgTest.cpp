// SPDX-License-Identifier: MIT
#include "pages/FlashPageSourceImg.h"

#include "pages/FlashPageImage.h"

#include <gmock/gmock.h>
#include <QStringList>

using namespace Qt::StringLiterals;
using leafcast::FlashPageImage;
using leafcast::FlashPageSourceImg;

namespace {

class FlashPageSourceImgTest : public testing::Test {
protected:
    FlashPageSourceImgTest()
    {
        for (const auto& path : { u"/a.jpg"_s, u"/b.png"_s, u"/c.jpg"_s })
            iSource.addImgPageFromFile(path);
    }

    static QStringList described(const FlashPageSourceImg::Pages& pages)
    {
        QStringList list;
        for (const auto& page : pages)
            list.append(u"%1 %2"_s.arg(page->pageIndex()).arg(page->pageFilePath()));
        return list;
    }

    FlashPageSourceImg iSource;
    const QStringList iExpected{ u"1 /a.jpg"_s, u"2 /b.png"_s, u"3 /c.jpg"_s };
};

} // namespace

TEST_F(FlashPageSourceImgTest, NumbersItsPagesInTheOrderOfAddingAndCopiesThem)
{
    iSource.generatePages();
    iSource.generateNormalPages();
    iSource.generateNormalPages();
    EXPECT_EQ(described(iSource.pages()), iExpected);
    EXPECT_EQ(described(iSource.normalPages()), iExpected);
    EXPECT_NE(iSource.pages().front(), iSource.normalPages().front());
    EXPECT_TRUE(std::dynamic_pointer_cast<FlashPageImage>(iSource.normalPages().front()));
    EXPECT_TRUE(iSource.zoomedPages().empty());
    EXPECT_TRUE(iSource.thumbPages().empty());
}

TEST_F(FlashPageSourceImgTest, PutsALaterPageAtThePositionOfItsNumber)
{
    iSource.generateNormalPages();
    iSource.normalPages().erase(iSource.normalPages().begin() + 1);
    iSource.generateNormalPages();
    EXPECT_EQ(described(iSource.normalPages()), iExpected);
}

TEST_F(FlashPageSourceImgTest, FindsPagesByPositionAndNormalOnesByNumber)
{
    EXPECT_EQ(iSource.getNormalPageAtIndex(1), nullptr);
    iSource.generateNormalPages();
    iSource.normalPages().insert(iSource.normalPages().begin(), nullptr);
    EXPECT_EQ(iSource.getPageAtIndex(2)->pageFilePath(), u"/c.jpg"_s);
    EXPECT_EQ(iSource.getPageAtIndex(3), nullptr);
    EXPECT_EQ(iSource.getPageAtIndex(static_cast<quint32>(-1)), nullptr);
    EXPECT_EQ(iSource.getNormalPageAtIndex(3)->pageFilePath(), u"/c.jpg"_s);
    EXPECT_EQ(iSource.getNormalPageAtIndex(0), nullptr);
    EXPECT_EQ(iSource.getZoomedPageAtIndex(1), nullptr);
    EXPECT_EQ(iSource.getThumbPageAtIndex(1), nullptr);
}

TEST_F(FlashPageSourceImgTest, ClearingEmptiesTheListsAndKeepsTheStopFlag)
{
    iSource.generateNormalPages();
    iSource.setStop(true);
    iSource.clearPages();
    EXPECT_TRUE(iSource.pages().empty());
    EXPECT_TRUE(iSource.normalPages().empty());
    EXPECT_TRUE(iSource.stop());
}
