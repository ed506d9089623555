// SPDX-License-Identifier: MIT
#include "publish/ReaderDataWriter.h"

#include "base/FileSteps.h"
#include "publish/ReaderDataScript.h"

using namespace Qt::StringLiterals;

namespace leafcast {

void ReaderDataWriter::addPage(const ReaderPage& page)
{
    iPages.append(ReaderDataScript::page(page));
    iTexts.append(ReaderDataScript::text(page.lines));
    iHasText = iHasText || !page.lines.empty();
    // Before the first text nothing tells whether the book has such files at all.
    while (iHasText && iTexts.size() >= pagesInTextFile)
        writeTexts();
}

bool ReaderDataWriter::finish(const std::vector<ReaderOutlineItem>& outline)
{
    if (iHasText && !iTexts.isEmpty())
        writeTexts();
    const int textPages = iHasText ? pagesInTextFile : 0;
    write(bookFileName,
        ReaderDataScript::bookFile(textPages, iPages, ReaderDataScript::outline(outline)));
    return iIsWhole;
}

void ReaderDataWriter::writeTexts()
{
    const auto number = static_cast<int>(iTextFiles.size()) + 1;
    iTextFiles.append(u"text-%1.js"_s.arg(number));
    const QByteArrayList texts = iTexts.mid(0, pagesInTextFile);
    iTexts.remove(0, texts.size());
    write(iTextFiles.last(), ReaderDataScript::textFile(number, texts));
}

void ReaderDataWriter::write(const QString& name, const QByteArray& bytes)
{
    iIsWhole = iIsWhole && FileSteps::writeAtomically(iFolder + u'/' + name, bytes);
}

} // namespace leafcast
