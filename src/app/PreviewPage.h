// SPDX-License-Identifier: MIT
#pragma once

#include <QWebEnginePage>

namespace leafcast {

/// The page of the preview: the book runs from its folder, and nothing but the book does. Links to
/// the web open in the user's browser.
class PreviewPage : public QWebEnginePage {
    Q_OBJECT

public:
    explicit PreviewPage(QObject* parent = nullptr);

    /// The only folder that is shown from.
    void setBookFolder(const QString& folder) { iBookFolder = folder; }
    /// The next book opens at its beginning, and not where this one lies open.
    void forgetPlace();

protected:
    bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) override;
    QWebEnginePage* createWindow(WebWindowType type) override;
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString& message,
        int line, const QString& source) override;

private:
    bool isOfBook(const QUrl& url) const;

    QString iBookFolder;
};

} // namespace leafcast
