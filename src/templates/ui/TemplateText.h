// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>

namespace leafcast {

/// A text of a template's description in the language of the windows. Templates are written in
/// English; what no catalogue knows, such as the texts of a user's own template, is shown as it
/// stands.
class TemplateText {
    Q_DECLARE_TR_FUNCTIONS(leafcast::TemplateText)

public:
    static QString of(const QString& text)
    {
        return text.isEmpty() ? text : tr(text.toUtf8().constData());
    }
};

} // namespace leafcast
