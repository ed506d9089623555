// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace leafcast {

class FlashTemplateProperty;

/// One property as a member of the object literal in a book's script. Deliberately without any
/// escaping: key and value stand in the script as they are.
struct ScriptEntry {
    explicit ScriptEntry(const FlashTemplateProperty& property);

    /// "KEY:VALUE," with quotes around the value unless it is a number.
    QString text() const;

    QString key;
    QString value; // without the quotes
    bool isQuoted;
};

} // namespace leafcast
