// SPDX-License-Identifier: MIT
#include "cli/PublishReport.h"

#include "base/DataSize.h"
#include "pages/ImportSentences.h"

#include <algorithm>
#include <cmath>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    constexpr int formatVersion = 1;

    double roundedToMilliseconds(double seconds)
    {
        return std::round(seconds * 1000) / 1000;
    }

    QJsonArray asJsonList(const std::vector<PublishReport::MissingPage>& pages)
    {
        QJsonArray list;
        for (const auto& page : pages)
            list.append(QJsonObject{ { u"number"_s, page.number }, { u"reason"_s, page.reason } });
        return list;
    }

} // namespace

QByteArray PublishReport::asJson() const
{
    QJsonObject times{ { u"import"_s, roundedToMilliseconds(importSeconds) },
        { u"write"_s, roundedToMilliseconds(writeSeconds) },
        { u"total"_s, roundedToMilliseconds(totalSeconds()) } };
    QJsonObject report{
        { u"version"_s, formatVersion },
        { u"complete"_s, isComplete() },
        { u"input"_s, input },
        { u"output"_s, output },
        { u"page"_s, page },
        { u"title"_s, title },
        { u"pages"_s, pageCount },
        { u"bytes"_s, bytes },
        { u"missingPages"_s, asJsonList(missingPages) },
        { u"missingFiles"_s, QJsonArray::fromStringList(missingFiles) },
        { u"warnings"_s, QJsonArray::fromStringList(warnings) },
    };
    if (archive) {
        report[u"archive"_s]
            = QJsonObject{ { u"path"_s, archive->path }, { u"bytes"_s, archive->bytes } };
        times[u"archive"_s] = roundedToMilliseconds(archive->seconds);
    }
    report[u"seconds"_s] = times;
    return QJsonDocument(report).toJson();
}

double PublishReport::totalSeconds() const
{
    return importSeconds + writeSeconds + (archive ? archive->seconds : 0);
}

QStringList PublishReport::summary() const
{
    QStringList lines{ u"%1, %2, in %3 s"_s.arg(ImportSentences::countOfPages(pageCount),
        dataSize(bytes), QString::number(totalSeconds(), 'f', 1)) };
    if (archive)
        lines.append(u"packed into %1, %2"_s.arg(archive->path, dataSize(archive->bytes)));
    return lines;
}

QStringList PublishReport::missingPageSentences() const
{
    QStringList sentences;
    for (auto first = missingPages.begin(); first != missingPages.end();) {
        const auto breaksRow = [](const auto& a, const auto& b) {
            return b.number != a.number + 1 || b.reason != a.reason;
        };
        const auto last = std::adjacent_find(first, missingPages.end(), breaksRow);
        const auto end = last == missingPages.end() ? last : last + 1;
        const QString pages = end - first == 1
            ? u"page %1 is"_s.arg(first->number)
            : u"pages %1-%2 are"_s.arg(first->number).arg((end - 1)->number);
        sentences.append(u"%1 missing: %2"_s.arg(pages, first->reason));
        first = end;
    }
    return sentences;
}

} // namespace leafcast
