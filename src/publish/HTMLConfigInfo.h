// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace leafcast {

/// What the head of a book's HTML page says. Values stand in the page as they are: callers escape
/// what comes from a file.
class HTMLConfigInfo {
public:
    const QString& HTMLTitle() const { return iHTMLTitle; }
    void setHTMLTitle(const QString& title) { iHTMLTitle = title; }
    const QString& HTMLKeywords() const { return iHTMLKeywords; }
    void setHTMLKeywords(const QString& keywords) { iHTMLKeywords = keywords; }
    const QString& HTMLDescription() const { return iHTMLDescription; }
    void setHTMLDescription(const QString& description) { iHTMLDescription = description; }
    /// These two are held, but no page uses them.
    const QString& HTMLScript() const { return iHTMLScript; }
    void setHTMLScript(const QString& script) { iHTMLScript = script; }
    const QString& otherScript() const { return iOtherScript; }
    void setOtherScript(const QString& script) { iOtherScript = script; }

    /// Fills the page's placeholders "index.title", "meta.keywords" and "meta.description" and
    /// writes it as UTF-8, atomically. A page that can't be read gives an empty one. False, with an
    /// older file left as it was, when it can't be written.
    bool generateHTMLFrom(const QString& templateFile, const QString& outputFile) const;

private:
    QString iHTMLTitle = QStringLiteral("Pageflip");
    QString iHTMLKeywords = QStringLiteral("Leafcast,page flip,flipping-book");
    QString iHTMLDescription = QStringLiteral("leafcast.example");
    QString iHTMLScript = QStringLiteral("");
    QString iOtherScript = QStringLiteral("");
};

} // namespace leafcast
