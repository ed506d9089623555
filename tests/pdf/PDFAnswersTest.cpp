// SPDX-License-Identifier: MIT
#include "pdf/PDFAnswers.h"

#include <gtest/gtest.h>
#include <QJsonDocument>

using namespace Qt::StringLiterals;
using namespace leafcast;

static QJsonObject json(const QByteArray& text)
{
    return QJsonDocument::fromJson(text).object();
}

TEST(PDFAnswers, OutlineEntriesHangBelowTheLastOneOfALowerLevel)
{
    const std::optional<PDFOutline> root = PDFAnswers::outlineRoot(json(R"({"entries":[
        {"level":1,"label":"1","page":0}, {"level":2,"label":"1.1","page":1},
        {"level":4,"label":"1.1.1","page":2}, {"level":2,"label":"1.2","page":3},
        {"level":0,"label":"2","page":-1}, {"label":"3"}]})"));

    ASSERT_EQ(root->numberOfChildren(), 3);
    const PDFOutline& first = root->childAtIndex(0);
    EXPECT_EQ(first.childAtIndex(0).childAtIndex(0).label, u"1.1.1"_s);
    EXPECT_EQ(first.childAtIndex(1).destination.pageIndex, 3);
    EXPECT_EQ(root->childAtIndex(2).destination.pageIndex, -1);
}

TEST(PDFAnswers, ValuesOfTheWrongKindReadAsNothing)
{
    const auto pages = PDFAnswers::pages(json(R"({"pages":[null, 3, {"cropBox":"x","rotation":[]},
        {"cropBox":[1,2,3,4],"rotation":-90,"userUnit":2,"label":"iv"}]})"),
        7);

    ASSERT_EQ(pages.size(), 4U);
    EXPECT_FALSE(pages[0] || pages[1]);
    EXPECT_EQ(pages[2]->boundsForBox(PDFBox::CropBox).width, 0);
    EXPECT_EQ(pages[3]->index(), 10);
    EXPECT_TRUE(PDFAnswers::textLines(json(R"({"lines":{"text":"x"}})")).empty());
}
