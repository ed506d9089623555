// SPDX-License-Identifier: MIT
#pragma once

#include "base/TextDecoding.h"

#include <optional>
#include <QStringList>
#include <vector>

namespace leafcast {

/// The line format that styles, export and import share: one "key=value" a record, a line feed and
/// a carriage return in front of each (in that order, as the format has it). Nothing is escaped, so
/// a value with a line feed breaks in two.
namespace SettingsFile {

    struct Record {
        QString key;
        QString value;
    };

    struct Content {
        std::vector<Record> records; // in file order; lines without "=" are left out
        TextEncoding encoding = TextEncoding::Utf8;
    };

    /// None, with a log line, when the file can't be read.
    std::optional<Content> read(const QString& path);

    std::vector<Record> parse(const QString& text);

    /// One record as the file holds it, without what stands in front of it.
    QString recordText(const QString& key, const QString& value);

    /// The key as written: each line feed and carriage return pair becomes "|||".
    QString writtenKey(const QString& key);

} // namespace SettingsFile

/// What an import of settings found, for callers who tell the user.
struct SettingsImportReport {
    bool readable = false;
    TextEncoding encoding = TextEncoding::Utf8;
    int recordCount = 0; // 0 in a readable file: it holds no "=" at all
    QStringList unknownKeys; // of records that no property has, in file order
};

} // namespace leafcast
