// SPDX-License-Identifier: MIT
#include "pages/ImportSentences.h"

#include "base/FileReason.h"
#include "base/Sentences.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace leafcast::ImportSentences {

QString notOpened(const QString& path, const PDFDocument::OpenResult& result)
{
    return Sentences::tr("the PDF %1 can't be opened: %2")
        .arg(path, whyUnreadable(path, result.reason));
}

QString noPages(const QString& path)
{
    return Sentences::tr("%1 has no pages").arg(path);
}

QString notImported(const QString& path)
{
    return Sentences::tr("the pages of %1 can't be imported").arg(path);
}

QString noPageDrawn(const QString& path, const std::vector<PageReport>& pages)
{
    const auto isWritten = [](const PageReport& page) { return page.picture.written; };
    if (std::ranges::any_of(pages, isWritten))
        return {};
    if (pages.empty())
        return noPages(path);
    return Sentences::tr("no page of %1 can be drawn; of the first: %2")
        .arg(path, pages.front().picture.problem);
}

QString pagesNotDrawn(const std::vector<PageReport>& pages)
{
    constexpr qsizetype numbersShown = 10;
    QStringList numbers;
    for (const PageReport& page : pages)
        if (!page.picture.written)
            numbers.append(QString::number(page.pageNumber));
    if (numbers.isEmpty())
        return {};
    const QString more = numbers.size() > numbersShown ? u" …"_s : QString();
    return Sentences::tr("%1 of %2 could not be drawn: %3")
        .arg(QString::number(numbers.size()), countOfPages(qsizetype(pages.size())),
            numbers.mid(0, numbersShown).join(u", "_s) + more);
}

QString countOfPages(qsizetype count)
{
    return count == 1 ? Sentences::tr("1 page") : Sentences::tr("%1 pages").arg(count);
}

} // namespace leafcast::ImportSentences
