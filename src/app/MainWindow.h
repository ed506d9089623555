// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QMainWindow>

class QActionGroup;
class QSplitter;
class QStackedWidget;
class QWebEngineView;

namespace leafcast {

class ApplyItem;
class PreviewPage;
class ProblemLabel;
class PropertyPanel;

/// Arranges the property editor beside the preview, with menus and a toolbar. What the commands do
/// is the business of whoever connects to them.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);

    PropertyPanel& properties() { return *iProperties; }
    PreviewPage& previewPage() { return *iPage; }
    QWebEngineView& webView() { return *iWebView; }
    QSplitter& splitter() { return *iSplitter; }
    ApplyItem& applyItem() { return *iApply; }
    QMenu& recentMenu() { return *iRecent; }

    /// A sentence over the preview until a page is shown; empty while one is on its way.
    void showNotice(const QString& text);
    void showPreview(const QUrl& page);
    /// What stays in the status bar about the book, without capital and full stop; empty for
    /// nothing.
    void showImportNotice(const QString& text);
    /// What the preview shows, in a few words.
    void showSummary(const QString& text) { iSummary->setText(text); }

    QAction* importPDF = nullptr;
    QAction* exportFlipBook = nullptr;
    QAction* selectTemplate = nullptr;
    QAction* exportTmplSettings = nullptr;
    QAction* importTmplSettings = nullptr;
    QAction* previewWindow = nullptr;
    QAction* openHelp = nullptr;
    QAction* openAbout = nullptr;
    QActionGroup* appearance = nullptr; // the data of each is an Appearance

Q_SIGNALS:
    void filesDropped(const QStringList& paths);
    void closed();

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    QAction* makeAction(const QString& name, const QString& icon, const QString& text,
        const QString& tip, const QKeySequence& shortcut = {});
    void makeActions();
    void makeMenus();
    void makeAppearanceMenu(QMenu& view);
    void makeToolBar();
    void makeStatusBar();
    QWidget* makePreview();

    PropertyPanel* iProperties;
    ProblemLabel* iImportNotice;
    QWebEngineView* iWebView = nullptr;
    PreviewPage* iPage = nullptr;
    QStackedWidget* iPreview = nullptr;
    QLabel* iNotice = nullptr;
    QLabel* iSummary;
    QSplitter* iSplitter;
    ApplyItem* iApply;
    QMenu* iRecent = nullptr;
};

} // namespace leafcast
