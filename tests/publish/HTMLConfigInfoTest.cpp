// SPDX-License-Identifier: MIT
#include "publish/HTMLConfigInfo.h"

#include "publish/BookFixture.h"

namespace leafcast {

using HTMLConfigInfoTest = BookFixture;

TEST_F(HTMLConfigInfoTest, FillsThePageInUtf8OrWritesAnEmptyOne)
{
    const LogCapture log;
    HTMLConfigInfo info;
    const auto generated = [&](const QByteArray& text) {
        info.generateHTMLFrom(resources.addFile(u"in.html"_s, text), inBook(u"out.html"_s));
        return bookFile(u"out.html"_s);
    };
    EXPECT_EQ(generated("<title>${index.title}</title>\n<meta ${meta.keywords}>"
                        "\n<meta ${meta.description}>\n<p>\xC3\xA9</p>\n"),
        "<title>Pageflip</title>\n<meta Leafcast,page flip,flipping-book>\n"
        "<meta leafcast.example>\n<p>\xC3\xA9</p>");
    info.setHTMLTitle(u"B\u00FC & <more>"_s);
    EXPECT_EQ(generated("<p>${index.title}\xE9"), "<p>B\xC3\xBC & <more>\xC3\xA9");
    info.generateHTMLFrom(u"/nowhere/index.html"_s, inBook(u"out.html"_s));
    EXPECT_EQ(bookFile(u"out.html"_s), "");
}

} // namespace leafcast
