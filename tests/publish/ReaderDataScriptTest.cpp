// SPDX-License-Identifier: MIT
#include "publish/ReaderDataScript.h"

#include "support/TestFiles.h"

using namespace Qt::StringLiterals;
using namespace leafcast;

// The player's tests read the same files.
TEST(ReaderDataScript, HoldsWhatThePlayerReads)
{
    const ReaderPage pages[]
        = { { 5, u"v"_s, u"files/page/5.jpg"_s, 1224, 1584,
                { { { 0.1, 0.075, 0.2, 0.05 }, u"https://leaf.example/?a=1&b=<2>"_s, 0, 0 },
                    { { 0, 1.0 / 3, 0.25, 2.0 / 3 }, {}, 7, 3 },
                    { { 0.5, 0.5, 0.5, 0.5 }, {}, 40, 0 } },
                { { u"Hello world"_s, { { 0.1, 0.2, 0.3, 0.04 }, { 0.41, 0.2, 0.5, 0.04 } } },
                    { u"\"\u00C9t\u00E9\\</script>\u2028\u2029\U0001F343"_s,
                        { { 0.1, 0.3, 1, 0.0001 } } } } },
              { 6, u"6"_s, u"files/page/6.jpg"_s, 1584, 1224, {},
                  { { u"Landscape"_s, { { 0, 0, 0.5, 0.5 } } } } },
              { 7, u"7"_s, u"files/page/7.jpg"_s, 0, 0, {}, {} } };
    QByteArrayList entries;
    QByteArrayList texts;
    for (const ReaderPage& page : pages) {
        entries.append(ReaderDataScript::page(page));
        texts.append(ReaderDataScript::text(page.lines));
    }
    const QByteArray outline = ReaderDataScript::outline(
        { { u"Chapter <1>"_s, 5, 1,
              { { u"Section"_s, 7, 3, {} }, { u"Not in the book"_s, 40, 0, {} } } },
            { u"No target"_s, 0, 0, {} } });
    EXPECT_EQ(ReaderDataScript::bookFile({ 1 }, entries, outline),
        readTestFile(QStringLiteral(LEAFCAST_FIXTURES "/reader-data/book.js")));
    EXPECT_EQ(ReaderDataScript::textFile(1, texts),
        readTestFile(QStringLiteral(LEAFCAST_FIXTURES "/reader-data/text-1.js")));
}
