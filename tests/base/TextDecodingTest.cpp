// SPDX-License-Identifier: MIT
#include "base/TextDecoding.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using leafcast::decodeText;
using leafcast::TextEncoding;

TEST(TextDecoding, ReadsEachEncodingAndLeavesTheByteOrderMarkOut)
{
    struct Case {
        QByteArray bytes;
        TextEncoding encoding;
    };
    const Case cases[] = {
        { "a\xC3\xA9", TextEncoding::Utf8 },
        { "\xEF\xBB\xBF"
          "a\xC3\xA9",
            TextEncoding::Utf8 },
        { QByteArray("\xFF\xFE"
                     "a\0\xE9\0",
              6),
            TextEncoding::Utf16 },
        { QByteArray("\xFE\xFF"
                     "\0a\0\xE9",
              6),
            TextEncoding::Utf16 },
        { "a\xE9", TextEncoding::Latin1 },
    };
    for (const auto& [bytes, encoding] : cases) {
        const auto decoded = decodeText(bytes);
        EXPECT_EQ(decoded.text, u"a\u00E9"_s) << bytes.toHex().constData();
        EXPECT_EQ(decoded.encoding, encoding) << bytes.toHex().constData();
    }
    EXPECT_EQ(decodeText("").text, u""_s);
}
