// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>

namespace leafcast {

/// Fills the placeholders of a text, a name between "${" and "}" each. The scanner skips white
/// space before everything that it scans, deliberately: blanks at the start, behind a placeholder
/// and at the end of the text are lost, and a placeholder that has no text in front of it ends the
/// filling, so that the rest stays as it is.
class TextTemplate {
public:
    explicit TextTemplate(const QString& text)
        : fromStr(text)
    {
    }

    /// A later value for the same name replaces the earlier one.
    void setItem(const QString& name, const QString& value) { keyAndValues.insert(name, value); }

    /// The filled-in text. A name without a value becomes the empty string; values are not scanned
    /// again.
    QString parse() const;

private:
    QString fromStr;
    QHash<QString, QString> keyAndValues;
};

} // namespace leafcast
