// SPDX-License-Identifier: MIT
#include "publish/HTMLConfigInfo.h"

#include "base/FileSteps.h"
#include "support/LogCapture.h"
#include "support/TemporaryResources.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace leafcast;

namespace {

const QByteArray page = "<title>${index.title}</title>\n"
                        "<meta name=\"keywords\" content=\"${meta.keywords}\">\n"
                        "<meta name=\"description\" content=\"${meta.description}\">\n"
                        "<p>\xC3\xA9</p>\n";

class HTMLConfigInfoTest : public testing::Test {
protected:
    QByteArray generated(const QByteArray& templateText) const
    {
        const QString output = resources.path(u"out.html"_s);
        info.generateHTMLFrom(resources.addFile(u"template.html"_s, templateText), output);
        return FileSteps::read(output).value_or("none");
    }

    TemporaryResources resources;
    HTMLConfigInfo info;
};

} // namespace

TEST_F(HTMLConfigInfoTest, FillsThePage)
{
    EXPECT_EQ(generated(page),
        "<title>Pageflip</title>\n"
        "<meta name=\"keywords\" content=\"Leafcast,page flip,flipping-book\">\n"
        "<meta name=\"description\" content=\"leafcast.example\">\n"
        "<p>\xC3\xA9</p>");
    info.setHTMLTitle(u"B\u00FCcher & <more>"_s);
    EXPECT_TRUE(generated(page).startsWith("<title>B\xC3\xBC"
                                           "cher & <more></title>\n"));
}

TEST_F(HTMLConfigInfoTest, WritesUtf8WhateverTheTemplateIsIn)
{
    EXPECT_EQ(generated("\xFF\xFE"
                        "a\0\xE9\0"_ba),
        "a\xC3\xA9");
    EXPECT_EQ(generated("a\xE9"), "a\xC3\xA9");
}

TEST_F(HTMLConfigInfoTest, WritesAnEmptyPageWithoutATemplate)
{
    const LogCapture log;
    const QString output = resources.addFile(u"out.html"_s, "old");
    for (const QString& missing : { u""_s, u"/nowhere/index.html"_s }) {
        info.generateHTMLFrom(missing, output);
        EXPECT_EQ(FileSteps::read(output), ""_ba);
    }
    EXPECT_EQ(log.lines().size(), 2);
}

TEST_F(HTMLConfigInfoTest, LeavesTheOlderPageWhenItCannotWrite)
{
    const LogCapture log;
    const QString keep = resources.addFile(u"page.html/keep.txt"_s, "old");
    info.generateHTMLFrom(
        resources.addFile(u"template.html"_s, "x"), resources.path(u"page.html"_s));
    EXPECT_EQ(FileSteps::read(keep), "old"_ba);
    EXPECT_EQ(log.lines().size(), 1);
}
