// SPDX-License-Identifier: MIT
#include "publish/ReaderDataWriter.h"

#include "base/FileSteps.h"
#include "publish/ReaderDataScript.h"

using namespace Qt::StringLiterals;

namespace leafcast {

void ReaderDataWriter::addPage(const ReaderPage& page)
{
    const QByteArray text = ReaderDataScript::text(page.lines);
    // Before the first text nothing tells whether the book has such files at all.
    if (iHasText && !iTexts.isEmpty() && iTextBytes + text.size() > mostTextBytes)
        writeTexts();
    iPages.append(ReaderDataScript::page(page));
    iTexts.append(text);
    iTextBytes += text.size();
    iHasText = iHasText || !page.lines.empty();
}

bool ReaderDataWriter::finish(const std::vector<ReaderOutlineItem>& outline)
{
    if (iHasText && !iTexts.isEmpty())
        writeTexts();
    write(bookFileName,
        ReaderDataScript::bookFile(iTextStarts, iPages, ReaderDataScript::outline(outline)));
    return iIsWhole;
}

void ReaderDataWriter::writeTexts()
{
    iTextStarts.push_back(static_cast<int>(iPages.size() - iTexts.size()) + 1);
    const auto number = static_cast<int>(iTextStarts.size());
    iTextFiles.append(u"text-%1.js"_s.arg(number));
    write(iTextFiles.last(), ReaderDataScript::textFile(number, iTexts));
    iTexts.clear();
    iTextBytes = 0;
}

void ReaderDataWriter::write(const QString& name, const QByteArray& bytes)
{
    iIsWhole = iIsWhole && FileSteps::writeAtomically(iFolder + u'/' + name, bytes);
}

} // namespace leafcast
