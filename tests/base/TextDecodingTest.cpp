// SPDX-License-Identifier: MIT
#include "base/TextDecoding.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using leafcast::decodeText;
using leafcast::TextEncoding;

TEST(TextDecoding, ReadsEachEncodingAndLeavesTheByteOrderMarkOut)
{
    const std::pair<QByteArray, TextEncoding> cases[] = { { "61C3A9", TextEncoding::Utf8 },
        { "EFBBBF61C3A9", TextEncoding::Utf8 }, { "FFFE6100E900", TextEncoding::Utf16 },
        { "FEFF006100E9", TextEncoding::Utf16 }, { "61E9", TextEncoding::Latin1 } };
    for (const auto& [bytes, encoding] : cases) {
        const auto decoded = decodeText(QByteArray::fromHex(bytes));
        EXPECT_EQ(decoded.text, u"a\u00E9"_s) << bytes.constData();
        EXPECT_EQ(decoded.encoding, encoding) << bytes.constData();
    }
}
