// SPDX-License-Identifier: MIT
#include "templates/SettingsFile.h"

#include "base/FileSteps.h"
#include "base/Log.h"

using namespace Qt::StringLiterals;

namespace leafcast::SettingsFile {

std::optional<Content> read(const QString& path)
{
    const auto bytes = FileSteps::read(path);
    if (!bytes)
        return std::nullopt;
    const DecodedText decoded = decodeText(*bytes);
    if (decoded.encoding == TextEncoding::Latin1)
        LOG_WARN("SettingsFile", u"%1 is not UTF-8; read as Latin-1"_s.arg(path));
    return Content{ parse(decoded.text), decoded.encoding };
}

std::vector<Record> parse(const QString& text)
{
    std::vector<Record> records;
    for (QString& piece : text.split(u'\n')) {
        piece.remove(u'\r');
        const qsizetype equals = piece.indexOf(u'=');
        if (equals >= 0)
            records.push_back({ piece.first(equals), piece.sliced(equals + 1) });
    }
    return records;
}

QString recordText(const QString& key, const QString& value)
{
    return writtenKey(key) + u'=' + value;
}

QString writtenKey(const QString& key)
{
    return QString(key).replace(u"\n\r"_s, u"|||"_s);
}

} // namespace leafcast::SettingsFile
