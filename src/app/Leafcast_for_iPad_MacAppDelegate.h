// SPDX-License-Identifier: MIT
#pragma once

#include "app/PreviewBook.h"
#include "app/PreviewServer.h"
#include "app/WindowMemory.h"
#include "base/BackgroundQueue.h"
#include "base/NotificationCenter.h"
#include "links/FlashOutline.h"
#include "links/FlashPagesAnnotations.h"
#include "pages/FlashPageSource.h"
#include "templates/FlashTemplate.h"

#include <memory>
#include <QObject>

namespace leafcast {

class HowtoPreveiwWindowDelegate;
class ImportWindowDelegate;
class MainWindow;
class OutputWindowDelegate;
class SelectTemplateWindowDelegate;

/// Owns what the user works on: the pages, the template, the links and the outline. Brings the
/// program up, keeps the preview, and carries out the commands of the main window.
class Leafcast_for_iPad_MacAppDelegate : public QObject {
    Q_OBJECT

public:
    explicit Leafcast_for_iPad_MacAppDelegate(QObject* parent = nullptr);
    ~Leafcast_for_iPad_MacAppDelegate() override;

    // Start and end
    void prepaireTheLog();
    void applicationDidFinishLaunching();
    void makeFlashPreviewFolder();
    void removeFlashPreviewFolder();
    /// One that runs is ended first.
    void RunServer();
    void applicationWillTerminate();

    // The preview
    void tmplPpertyValueChanged();
    void OnApplyChange() { applyChange(); }
    /// Writes the book of the preview folder on another thread and shows it when it is written.
    void applyChange();
    void updateTmplPropertyTip();

    // Commands
    void OnImportPDF();
    /// As by the command, with a PDF or pictures filled in.
    void importFiles(const QStringList& files);
    void importWindowDidEnd(int returnCode);
    void OnExportTmplSettings();
    void exportTmplSettingsTo(QString path);
    void OnImportTmplSettings();
    /// Also for a cancelled panel, with an empty path: the preview is made anew, deliberately.
    void importTmplSettingsFrom(const QString& path);
    void OnExportFlipBook();
    void onSelectTemplate();
    void selectTmplWindowDidEnd(int returnCode);
    void OpenHelp();
    void OnPreviewWindow();
    void onOpenAbout();
    void OnOpenAbout() { onOpenAbout(); }

    MainWindow* window() const { return iWindow.get(); }
    const std::shared_ptr<FlashPageSource>& flashPageSource() const { return iFlashPageSource; }
    void setFlashPageSource(std::shared_ptr<FlashPageSource> source);
    const std::shared_ptr<FlashPagesAnnotations>& flashPagesAnnotations() const
    {
        return iFlashPagesAnnotations;
    }
    void setFlashPagesAnnotations(std::shared_ptr<FlashPagesAnnotations> annotations);
    const std::shared_ptr<FlashOutline>& flashOutline() const { return iFlashOutline; }
    void setFlashOutline(std::shared_ptr<FlashOutline> outline);
    const std::shared_ptr<FlashTemplate>& flashTmpl() const { return iFlashTmpl; }
    const QString& flashPreviewFolder() const { return iFlashPreviewFolder; }
    const PreviewServer& server() const { return iTask; }

Q_SIGNALS:
    /// The book of the preview folder is shown.
    void previewShown();

private:
    void makeSampleBook();
    void connectCommands();
    void placeWindow();
    void followAppearance();
    void fillRecentMenu();
    void previewWritten(const QString& page);
    void showAddresses();
    void tellTemplateProblem(const TemplateLoadOutcome& outcome);
    QString styleShown() const;

    std::unique_ptr<MainWindow> iWindow;
    // Children of the window, each made when it is first needed.
    ImportWindowDelegate* iImportWindow = nullptr;
    OutputWindowDelegate* iOuputWindow = nullptr;
    SelectTemplateWindowDelegate* iSelecteTmplWindow = nullptr;
    HowtoPreveiwWindowDelegate* iPreviewWindow = nullptr;

    std::shared_ptr<FlashPageSource> iFlashPageSource;
    std::shared_ptr<FlashTemplate> iFlashTmpl;
    std::shared_ptr<FlashPagesAnnotations> iFlashPagesAnnotations; // none until a PDF is imported
    std::shared_ptr<FlashOutline> iFlashOutline; // likewise
    QString iFlashPreviewFolder = QStringLiteral(""); // until it is first made
    BackgroundQueue iFormerSources; // on their way out
    PreviewBook iPreview;
    PreviewServer iTask;
    WindowMemory iMemory;
    NotificationCenter::Registration iTipRegistration;
    NotificationCenter::Registration iValueRegistration;
};

} // namespace leafcast
