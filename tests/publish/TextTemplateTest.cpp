// SPDX-License-Identifier: MIT
#include "publish/TextTemplate.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using leafcast::TextTemplate;

TEST(TextTemplate, ScansAsThePagesOfTemplatesExpectIt)
{
    const std::pair<const char16_t*, const char16_t*> cases[] = { { u"a${t}b", u"aTb" },
        { u"a ${t}  b", u"a Tb" }, { u"a${ t}b", u"aTb" }, { u"a${ t }b", u"ab" },
        { u"a${unknown}b", u"ab" }, { u"a${v}b${t}", u"a${t}bT" }, { u"${t}x", u"${t}x" },
        { u"a${t} \n ${t} ${t} z", u"aT${t} ${t} z" },
        { u"a${t} rest ___${__ ${t} b", u"aTrest ___b" },
        { u"a${x}${t}b ___${__ lost", u"a${t}b " }, { u"a${t and the rest } is lost", u"ais lost" },
        { u"a${t}b\r\n", u"aTb" }, { u"a${t\r\n", u"a" }, { u"", u"" } };
    for (const auto& [text, filled] : cases) {
        TextTemplate page(QString::fromUtf16(text));
        page.setItem(u"t"_s, u"old"_s);
        page.setItem(u"t"_s, u"T"_s);
        page.setItem(u"v"_s, u"${t}"_s);
        EXPECT_EQ(page.parse(), QString::fromUtf16(filled)) << qPrintable(QString::fromUtf16(text));
        EXPECT_EQ(page.parse(), QString::fromUtf16(filled));
    }
}
