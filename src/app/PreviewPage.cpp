// SPDX-License-Identifier: MIT
#include "app/PreviewPage.h"

#include "base/Log.h"

#include <QDesktopServices>
#include <QDir>
#include <QWebEngineProfile>
#include <QWebEngineSettings>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    /// Takes the address that a new window is opened with to the user's browser, and goes.
    class BrowserPage : public QWebEnginePage {
    public:
        using QWebEnginePage::QWebEnginePage;

    protected:
        bool acceptNavigationRequest(const QUrl& url, NavigationType, bool) override
        {
            if (!url.isLocalFile())
                QDesktopServices::openUrl(url);
            deleteLater();
            return false;
        }
    };

    bool leadsToPeople(const QUrl& url)
    {
        static const QStringList schemes = { u"http"_s, u"https"_s, u"mailto"_s, u"tel"_s };
        return schemes.contains(url.scheme());
    }

} // namespace

// The profile keeps nothing on disk: what was read last, for one, belongs to another book.
PreviewPage::PreviewPage(QObject* parent)
    : QWebEnginePage(new QWebEngineProfile, parent)
{
    // It may go only once there is no page any more.
    connect(this, &QObject::destroyed, [profile = profile()] { delete profile; });
    QWebEngineSettings& behaviour = *settings();
    behaviour.setAttribute(QWebEngineSettings::LocalContentCanAccessRemoteUrls, false);
    behaviour.setAttribute(QWebEngineSettings::PluginsEnabled, false);
    behaviour.setAttribute(QWebEngineSettings::FullScreenSupportEnabled, false);
}

void PreviewPage::forgetPlace()
{
    runJavaScript(u"localStorage.clear()"_s);
}

bool PreviewPage::acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame)
{
    Q_UNUSED(type)
    Q_UNUSED(isMainFrame)
    if (isOfBook(url))
        return true;
    if (leadsToPeople(url))
        QDesktopServices::openUrl(url);
    return false;
}

QWebEnginePage* PreviewPage::createWindow(WebWindowType type)
{
    Q_UNUSED(type)
    return new BrowserPage(this);
}

void PreviewPage::javaScriptConsoleMessage(
    JavaScriptConsoleMessageLevel level, const QString& message, int line, const QString& source)
{
    if (level == ErrorMessageLevel)
        LOG_WARN("PreviewPage", u"%1:%2: %3"_s.arg(source).arg(line).arg(message));
}

bool PreviewPage::isOfBook(const QUrl& url) const
{
    if (url.scheme() == u"about" || url.scheme() == u"data")
        return true;
    return url.isLocalFile()
        && QDir::cleanPath(url.toLocalFile()).startsWith(QDir::cleanPath(iBookFolder) + u'/');
}

} // namespace leafcast
