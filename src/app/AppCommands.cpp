// SPDX-License-Identifier: MIT
// The commands of the main window.
#include "app/AboutWindow.h"
#include "app/ApplyItem.h"
#include "app/AppName.h"
#include "app/Leafcast_for_iPad_MacAppDelegate.h"
#include "app/MainWindow.h"
#include "app/PreviewPage.h"
#include "base/ResourceFolder.h"
#include "pages/ui/ImportWindowDelegate.h"
#include "publish/ui/OutputWindowDelegate.h"
#include "templates/ui/HowtoPreveiwWindowDelegate.h"
#include "templates/ui/PropertyPanel.h"
#include "templates/ui/SelectTemplateWindowDelegate.h"
#include "widgets/FileOpener.h"
#include "widgets/ProblemLabel.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {
    constexpr int confirmed = 1;
}

void Leafcast_for_iPad_MacAppDelegate::connectCommands()
{
    using Delegate = Leafcast_for_iPad_MacAppDelegate;
    MainWindow& window = *iWindow;
    connect(window.importPDF, &QAction::triggered, this, &Delegate::OnImportPDF);
    connect(window.exportFlipBook, &QAction::triggered, this, &Delegate::OnExportFlipBook);
    connect(window.selectTemplate, &QAction::triggered, this, &Delegate::onSelectTemplate);
    connect(window.exportTmplSettings, &QAction::triggered, this, &Delegate::OnExportTmplSettings);
    connect(window.importTmplSettings, &QAction::triggered, this, &Delegate::OnImportTmplSettings);
    connect(window.previewWindow, &QAction::triggered, this, &Delegate::OnPreviewWindow);
    connect(window.openHelp, &QAction::triggered, this, &Delegate::OpenHelp);
    connect(window.openAbout, &QAction::triggered, this, &Delegate::onOpenAbout);
    connect(&window.applyItem(), &QAction::triggered, this, &Delegate::OnApplyChange);
    connect(&window, &MainWindow::filesDropped, this, &Delegate::importFiles);
    connect(&window.recentMenu(), &QMenu::aboutToShow, this, &Delegate::fillRecentMenu);
}

void Leafcast_for_iPad_MacAppDelegate::fillRecentMenu()
{
    QMenu& menu = iWindow->recentMenu();
    menu.clear();
    for (const QString& file : iMemory.recentFiles())
        menu.addAction(file, this, [this, file] { importFiles({ file }); });
    if (menu.isEmpty()) {
        menu.addAction(tr("No Recent Files"))->setEnabled(false);
        return;
    }
    menu.addSeparator();
    menu.addAction(tr("&Clear List"), this, [this] { iMemory.clearRecentFiles(); });
}

void Leafcast_for_iPad_MacAppDelegate::OnImportPDF()
{
    importFiles({});
}

void Leafcast_for_iPad_MacAppDelegate::importFiles(const QStringList& files)
{
    if (!iImportWindow) {
        iImportWindow = new ImportWindowDelegate(iWindow.get());
        connect(iImportWindow, &QDialog::finished, this,
            &Leafcast_for_iPad_MacAppDelegate::importWindowDidEnd);
    }
    if (!files.isEmpty() && !iImportWindow->isImporting())
        iImportWindow->takeFiles(files);
    iImportWindow->open();
}

void Leafcast_for_iPad_MacAppDelegate::importWindowDidEnd(int returnCode)
{
    if (returnCode != confirmed)
        return;
    const ImportWindowDelegate& sheet = *iImportWindow;
    iFlashTmpl->setPropertyValue(u"pageWidth"_s, QString::number(sheet.pageWidth()));
    iFlashTmpl->setPropertyValue(u"pageHeight"_s, QString::number(sheet.pageHeight()));
    setFlashPageSource(sheet.flashPageSource());
    setFlashPagesAnnotations(sheet.flashPagesAnnotations());
    setFlashOutline(sheet.flashOutline());
    if (!iFlashPageSource->sourceFile().isEmpty())
        iMemory.addRecentFile(iFlashPageSource->sourceFile());
    iWindow->showImportNotice(sheet.notice());
    iWindow->previewPage().forgetPlace();
    iWindow->properties().reloadData();
    applyChange();
}

void Leafcast_for_iPad_MacAppDelegate::OnExportTmplSettings()
{
    if (!iFlashTmpl)
        return;
    auto* panel
        = new QFileDialog(iWindow.get(), tr("Export Settings"), QString(), tr("Settings (*.txt)"));
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setAcceptMode(QFileDialog::AcceptSave);
    panel->setDefaultSuffix(u"txt"_s); // so that the panel asks before it replaces that file
    connect(panel, &QFileDialog::fileSelected, this,
        &Leafcast_for_iPad_MacAppDelegate::exportTmplSettingsTo);
    panel->open();
}

void Leafcast_for_iPad_MacAppDelegate::exportTmplSettingsTo(QString path)
{
    if (QFileInfo(path).suffix().isEmpty())
        path += u".txt"_s;
    iFlashTmpl->exportPropertiesSettingsTo(path);
}

void Leafcast_for_iPad_MacAppDelegate::OnImportTmplSettings()
{
    if (!iFlashTmpl)
        return;
    auto* panel
        = new QFileDialog(iWindow.get(), tr("Import Settings"), QString(), tr("Settings (*.txt)"));
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setFileMode(QFileDialog::ExistingFile);
    connect(panel, &QDialog::finished, this, [this, panel](int result) {
        const QStringList files = panel->selectedFiles();
        if (result != QDialog::Accepted)
            importTmplSettingsFrom(QString());
        else if (!files.isEmpty())
            importTmplSettingsFrom(files.first());
    });
    panel->open();
}

void Leafcast_for_iPad_MacAppDelegate::importTmplSettingsFrom(const QString& path)
{
    iFlashTmpl->importPropertiesSettingsFrom(path);
    iWindow->properties().reloadData();
    applyChange();
}

void Leafcast_for_iPad_MacAppDelegate::OnExportFlipBook()
{
    if (!iOuputWindow) {
        iOuputWindow = new OutputWindowDelegate(iWindow.get());
        // A book that has been replaced since would stay with the sheet until it is opened again.
        connect(iOuputWindow, &QDialog::finished, this,
            [this] { iOuputWindow->setFlashPageSource(nullptr); });
    }
    iOuputWindow->setFlashTmpl(iFlashTmpl);
    iOuputWindow->setFlashPageSource(iFlashPageSource);
    iOuputWindow->setFlashOutline(iFlashOutline);
    iOuputWindow->setFlashPagesAnnotations(iFlashPagesAnnotations);
    iOuputWindow->open();
}

void Leafcast_for_iPad_MacAppDelegate::onSelectTemplate()
{
    if (!iSelecteTmplWindow) {
        iSelecteTmplWindow = new SelectTemplateWindowDelegate(iWindow.get());
        connect(iSelecteTmplWindow, &QDialog::finished, this,
            &Leafcast_for_iPad_MacAppDelegate::selectTmplWindowDidEnd);
    }
    iSelecteTmplWindow->prepairToTmpl(iFlashTmpl->tmplName(), styleShown());
    iSelecteTmplWindow->open();
}

void Leafcast_for_iPad_MacAppDelegate::selectTmplWindowDidEnd(int returnCode)
{
    const QString picture = iSelecteTmplWindow->selectedStyle();
    if (returnCode != confirmed || picture.isEmpty())
        return;
    const QString style = QFileInfo(picture).path();
    const QString name = QFileInfo(QFileInfo(style).path()).fileName();
    // A broken one would take the place of the whole tree.
    if (const auto outcome = FlashTemplate::open(name).outcome; !outcome.isLoaded())
        return tellTemplateProblem(outcome);
    iFlashTmpl->changeTmplTo(name, style);
    iWindow->properties().reloadData();
    applyChange();
}

void Leafcast_for_iPad_MacAppDelegate::tellTemplateProblem(const TemplateLoadOutcome& outcome)
{
    const QString place = outcome.line > 0
        ? tr("%1, line %2").arg(outcome.file, QString::number(outcome.line))
        : outcome.file;
    auto* alert = new QMessageBox(QMessageBox::Warning, APP_NAME,
        tr("This template can't be used."), QMessageBox::Ok, iWindow.get());
    alert->setObjectName(u"templateProblem"_s);
    alert->setAttribute(Qt::WA_DeleteOnClose);
    alert->setTextFormat(Qt::PlainText);
    alert->setInformativeText(asSentence(place + u": "_s + outcome.reason));
    alert->open();
}

void Leafcast_for_iPad_MacAppDelegate::OpenHelp()
{
    openWithDesktop(ResourceFolder::path() + u"/help/help.pdf"_s);
}

void Leafcast_for_iPad_MacAppDelegate::OnPreviewWindow()
{
    if (!iPreviewWindow)
        iPreviewWindow = new HowtoPreveiwWindowDelegate(iWindow.get());
    showAddresses();
    iPreviewWindow->open();
}

void Leafcast_for_iPad_MacAppDelegate::showAddresses()
{
    if (!iPreviewWindow)
        return;
    if (!iTask.failure().isEmpty())
        iPreviewWindow->showFailure(iTask.failure());
    else
        iPreviewWindow->showAddresses(iTask.addresses());
}

void Leafcast_for_iPad_MacAppDelegate::onOpenAbout()
{
    auto* about = new AboutWindow(iWindow.get());
    about->setAttribute(Qt::WA_DeleteOnClose);
    about->open();
}

} // namespace leafcast
