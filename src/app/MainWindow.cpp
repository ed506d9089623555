// SPDX-License-Identifier: MIT
#include "app/MainWindow.h"

#include "app/ApplyItem.h"
#include "app/DroppedFiles.h"
#include "app/Look.h"
#include "app/PreviewPage.h"
#include "templates/ui/PropertyPanel.h"
#include "widgets/ProblemLabel.h"

#include <QActionGroup>
#include <QCloseEvent>
#include <QLabel>
#include <QMenuBar>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QToolBar>
#include <QWebEngineView>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    constexpr int smallestPanel = 280;
    constexpr int usualPanel = 352;
    constexpr int iconPixels = 20;
    constexpr int summaryMargin = 12;

    QAction* separator(QObject* parent)
    {
        auto* action = new QAction(parent);
        action->setSeparator(true);
        return action;
    }

} // namespace

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent)
    , iProperties(new PropertyPanel)
    , iImportNotice(new ProblemLabel)
    , iSummary(new QLabel)
    , iSplitter(new QSplitter)
    , iApply(new ApplyItem(this))
{
    iApply->setObjectName(u"toolBarItemApplyChange"_s);
    iProperties->setMinimumWidth(smallestPanel);
    iSplitter->addWidget(iProperties);
    iSplitter->addWidget(makePreview());
    iSplitter->setStretchFactor(1, 1);
    iSplitter->setSizes({ usualPanel, 3 * usualPanel });
    iSplitter->setChildrenCollapsible(false);
    setCentralWidget(iSplitter);
    makeActions();
    makeMenus();
    makeToolBar();
    makeStatusBar();
    setAcceptDrops(true);
}

void MainWindow::showNotice(const QString& text)
{
    iNotice->setText(text);
    iPreview->setCurrentWidget(iNotice);
}

void MainWindow::showPreview(const QUrl& page)
{
    iPage->setBackgroundColor(palette().color(QPalette::Window)); // until the book is drawn
    iPreview->setCurrentWidget(iWebView);
    iPage->load(page);
}

void MainWindow::showImportNotice(const QString& text)
{
    iImportNotice->showProblem(text);
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!droppedFiles(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event)
{
    const QStringList files = droppedFiles(*event->mimeData());
    if (files.isEmpty())
        return;
    event->acceptProposedAction();
    Q_EMIT filesDropped(files);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    QMainWindow::closeEvent(event);
    if (event->isAccepted())
        Q_EMIT closed();
}

QWidget* MainWindow::makePreview()
{
    iWebView = new QWebEngineView;
    iWebView->setObjectName(u"webView"_s);
    iWebView->setAccessibleName(tr("Preview of the book"));
    // Files go to the window, not into the page.
    iWebView->setAcceptDrops(false);
    iWebView->setContextMenuPolicy(Qt::NoContextMenu);
    iPage = new PreviewPage(iWebView);
    iWebView->setPage(iPage);
    iNotice = new QLabel;
    iNotice->setObjectName(u"notice"_s);
    iNotice->setAlignment(Qt::AlignCenter);
    iNotice->setWordWrap(true);
    iPreview = new QStackedWidget;
    iPreview->addWidget(iNotice);
    iPreview->addWidget(iWebView);
    return iPreview;
}

QAction* MainWindow::makeAction(const QString& name, const QString& icon, const QString& text,
    const QString& tip, const QKeySequence& shortcut)
{
    auto* action = new QAction(QIcon(u":/icons/%1.svg"_s.arg(icon)), text, this);
    action->setObjectName(name);
    action->setStatusTip(tip);
    action->setShortcut(shortcut);
    return action;
}

void MainWindow::makeActions()
{
    importPDF = makeAction(u"OnImportPDF"_s, u"import"_s, tr("&Import PDF…"),
        tr("Make a book of a PDF or of pictures"), QKeySequence::Open);
    exportFlipBook = makeAction(u"OnExportFlipBook"_s, u"publish"_s, tr("&Publish…"),
        tr("Write the book as a folder or as a package"), Qt::CTRL | Qt::Key_P);
    selectTemplate = makeAction(u"onSelectTemplate"_s, u"template"_s, tr("&Template…"),
        tr("Choose how the book is read, and its style"), Qt::CTRL | Qt::Key_T);
    exportTmplSettings = makeAction(u"OnExportTmplSettings"_s, u"settings-export"_s,
        tr("&Export Settings…"), tr("Save the values of all properties to a file"));
    importTmplSettings = makeAction(u"OnImportTmplSettings"_s, u"settings-import"_s,
        tr("I&mport Settings…"), tr("Take the values of properties from a file"));
    previewWindow = makeAction(u"OnPreviewWindow"_s, u"tablet"_s, tr("Show on a &Tablet…"),
        tr("How to see the book on a tablet of this network"));
    openHelp = makeAction(u"OpenHelp"_s, u"help"_s, tr("Leafcast &Guide"), tr("Open the guide"),
        QKeySequence::HelpContents);
    openAbout = makeAction(
        u"onOpenAbout"_s, u"about"_s, tr("&About Leafcast"), tr("Version and licences"));
}

void MainWindow::makeMenus()
{
    QMenu* file = menuBar()->addMenu(tr("&File"));
    file->addAction(importPDF);
    iRecent = file->addMenu(tr("Open &Recent"));
    iRecent->setObjectName(u"recentMenu"_s);
    file->addActions({ separator(file), exportFlipBook, previewWindow, separator(file),
        importTmplSettings, exportTmplSettings, separator(file) });
    QAction* quit = file->addAction(tr("&Quit"), QKeySequence::Quit, this, &QWidget::close);
    quit->setMenuRole(QAction::QuitRole);
    QMenu* edit = menuBar()->addMenu(tr("&Edit"));
    edit->addActions({ iProperties->undoAction(), iProperties->redoAction(), separator(edit),
        iProperties->resetAction(), iProperties->resetAllAction(), separator(edit),
        iProperties->findAction() });
    QMenu* book = menuBar()->addMenu(tr("&Book"));
    book->addActions({ iApply, selectTemplate });
    makeAppearanceMenu(*menuBar()->addMenu(tr("&View")));
    QMenu* help = menuBar()->addMenu(tr("&Help"));
    help->addActions({ openHelp, openAbout });
}

void MainWindow::makeAppearanceMenu(QMenu& view)
{
    appearance = new QActionGroup(this);
    const std::pair<Appearance, QString> choices[]
        = { { Appearance::System, tr("As the &Desktop") }, { Appearance::Light, tr("&Light") },
              { Appearance::Dark, tr("&Dark") } };
    for (const auto& [value, text] : choices) {
        QAction* choice = appearance->addAction(text);
        choice->setCheckable(true);
        choice->setData(static_cast<int>(value));
    }
    view.addActions(appearance->actions());
}

void MainWindow::makeToolBar()
{
    QToolBar* bar = addToolBar(tr("Toolbar"));
    bar->setObjectName(u"toolBar"_s);
    bar->setMovable(false);
    bar->setIconSize({ iconPixels, iconPixels });
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->setContextMenuPolicy(Qt::PreventContextMenu); // which would offer to hide it for good
    // What makes the book begins the line, what hands it on ends it.
    bar->addActions({ importPDF, selectTemplate, iApply });
    auto* gap = new QWidget;
    gap->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar->addWidget(gap);
    bar->addActions({ previewWindow, exportFlipBook });
}

void MainWindow::makeStatusBar()
{
    iImportNotice->setObjectName(u"importNotice"_s);
    statusBar()->addWidget(iImportNotice, 1);
    showImportNotice({});
    iSummary->setObjectName(u"summary"_s);
    iSummary->setForegroundRole(QPalette::PlaceholderText);
    iSummary->setContentsMargins(0, 0, summaryMargin, 0);
    statusBar()->addPermanentWidget(iSummary);
    statusBar()->setSizeGripEnabled(false);
}

} // namespace leafcast
