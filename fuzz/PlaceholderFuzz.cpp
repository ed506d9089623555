// SPDX-License-Identifier: MIT
#include "FuzzTarget.h"
#include "publish/TextTemplate.h"

using namespace leafcast;
using namespace Qt::StringLiterals;

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString text = QString::fromUtf8(fuzz::bytesOf(data, size));
    TextTemplate page(text);
    page.setItem(u"index.title"_s, u"${index.title}"_s);
    page.setItem(u"meta.keywords"_s, u"a\"b}<"_s);
    const QString filled = page.parse();
    const auto most = text.size() + text.count(u"${"_s) * u"${index.title}"_s.size();
    fuzz::require(filled.size() <= most, "values are not scanned again");
    return 0;
}
