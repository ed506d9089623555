// SPDX-License-Identifier: MIT
#include "pdf/PDFAnswers.h"

#include <gtest/gtest.h>
#include <QJsonDocument>

using namespace Qt::StringLiterals;
using namespace leafcast;

namespace {

QJsonObject json(const QByteArray& text)
{
    const QJsonDocument document = QJsonDocument::fromJson(text);
    EXPECT_TRUE(document.isObject()) << text.toStdString();
    return document.object();
}

int depth(const PDFOutline& outline)
{
    int deepest = 0;
    for (const PDFOutline& child : outline.children)
        deepest = std::max(deepest, depth(child) + 1);
    return deepest;
}

} // namespace

TEST(PDFAnswers, ALinkKeepsApartNoTargetAndATargetThatLeadsNowhere)
{
    const std::vector<PDFAnnotation> annotations = PDFAnswers::annotations(json(R"({"annotations":[
        {"type":"Link","bounds":[1,2,3,4],"url":"https://a.example/"},
        {"type":"Link","bounds":[0,0,1,1],"page":0},
        {"type":"Link","bounds":[0,0,1,1],"page":-1},
        {"type":"Text","bounds":[0,0,1,1]}]})"));

    ASSERT_EQ(annotations.size(), 4U);
    EXPECT_EQ(annotations[0].URL, u"https://a.example/"_s);
    EXPECT_EQ(annotations[0].bounds.height, 4);
    EXPECT_FALSE(annotations[0].destination);
    EXPECT_EQ(annotations[1].destination->pageIndex, 0);
    EXPECT_EQ(annotations[2].destination->pageIndex, -1);
    EXPECT_EQ(annotations[3].type, u"Text"_s);
    EXPECT_FALSE(annotations[3].URL || annotations[3].destination);
}

TEST(PDFAnswers, OutlineEntriesHangBelowTheLastOneOfALowerLevel)
{
    const std::optional<PDFOutline> root = PDFAnswers::outlineRoot(json(R"({"entries":[
        {"level":1,"label":"1","page":0}, {"level":2,"label":"1.1","page":1},
        {"level":4,"label":"1.1.1","page":2}, {"level":2,"label":"1.2","page":3},
        {"level":0,"label":"2","page":-1}, {"label":"3"}]})"));

    ASSERT_EQ(root->numberOfChildren(), 3);
    const PDFOutline& first = root->childAtIndex(0);
    ASSERT_EQ(first.numberOfChildren(), 2);
    EXPECT_EQ(first.childAtIndex(0).childAtIndex(0).label, u"1.1.1"_s);
    EXPECT_EQ(first.childAtIndex(1).destination.pageIndex, 3);
    EXPECT_EQ(root->childAtIndex(1).destination.pageIndex, -1);
    EXPECT_EQ(root->childAtIndex(2).destination.pageIndex, -1);
    EXPECT_FALSE(PDFAnswers::outlineRoot(json(R"({"entries":[]})")));
}

TEST(PDFAnswers, AnOutlineIsAtMostAHundredLevelsDeep)
{
    QByteArrayList entries;
    for (int level = 1; level <= 50000; ++level)
        entries.append("{\"level\":" + QByteArray::number(level) + "}");
    const auto root = PDFAnswers::outlineRoot(json("{\"entries\":[" + entries.join(',') + "]}"));

    EXPECT_EQ(depth(*root), 100);
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
    EXPECT_EQ(pages[3]->displayedWidth(), 8);
    EXPECT_EQ(pages[3]->label(), u"iv"_s);
    EXPECT_TRUE(PDFAnswers::textLines(json(R"({"lines":{"text":"x"}})")).empty());
}
