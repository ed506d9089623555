// SPDX-License-Identifier: MIT
#include "pages/FlashPageSourceImg.h"

#include "pages/FlashPageImage.h"

#include <gtest/gtest.h>
#include <QStringList>

using namespace Qt::StringLiterals;
using namespace leafcast;

TEST(FlashPageSourceImg, PutsALaterPageAtThePositionOfItsNumberAndSurvivesEmptyOnes)
{
    FlashPageSourceImg source;
    for (const auto& path : { u"/a.jpg"_s, u"/b.png"_s, u"/c.jpg"_s })
        source.addImgPageFromFile(path);
    source.generateNormalPages();
    source.normalPages().erase(source.normalPages().begin() + 1);
    source.generateNormalPages();
    QStringList list;
    for (const auto& page : source.normalPages())
        list.append(u"%1 %2"_s.arg(page->pageIndex()).arg(page->pageFilePath()));
    EXPECT_EQ(list, QStringList({ u"1 /a.jpg"_s, u"2 /b.png"_s, u"3 /c.jpg"_s }));
    source.normalPages().front() = nullptr;
    EXPECT_EQ(source.getNormalPageAtIndex(1), nullptr);
    EXPECT_EQ(source.getNormalPageAtIndex(3)->pageFilePath(), u"/c.jpg"_s);
    EXPECT_EQ(source.getPageAtIndex(3), nullptr);
}
