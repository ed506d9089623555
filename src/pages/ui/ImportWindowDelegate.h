// SPDX-License-Identifier: MIT
#pragma once

#include "base/BackgroundQueue.h"
#include "base/NotificationCenter.h"
#include "pages/import/ImageImport.h"
#include "pages/import/ImportPDFOperation.h"
#include "pages/ui/PDFGlance.h"
#include "settings/AppSettings.h"
#include "widgets/FileOpener.h"

#include <QDialog>
#include <QTimer>

namespace leafcast {

class ImportForm;

/// The import sheet: shown by open(), it ends with 1 when there are new pages, which its owner
/// takes then, else with 0. It remembers the user's choices in the settings. A failed import is
/// told in the sheet, which stays open with all that was typed.
class ImportWindowDelegate : public QDialog {
    Q_OBJECT

public:
    explicit ImportWindowDelegate(
        QWidget* parent = nullptr, AppSettings& settings = AppSettings::shareInstance());
    ~ImportWindowDelegate() override;

    /// Fills in a PDF, or images and folders of them, as they come from a drop or from the command
    /// line. Other files are left out.
    void takeFiles(const QStringList& paths);
    void setOpener(FileOpener opener) { iOpener = std::move(opener); }

    // Results
    const std::shared_ptr<FlashPageSource>& flashPageSource() const { return iFlashPageSource; }
    const std::shared_ptr<FlashPagesAnnotations>& flashPagesAnnotations() const
    {
        return iFlashPagesAnnotations;
    }
    const std::shared_ptr<FlashOutline>& flashOutline() const { return iFlashOutline; }
    qint32 pageWidth() const { return iPageWidth; } // of the first page, points, truncated
    qint32 pageHeight() const { return iPageHeight; }
    /// What the user should know of an import that ended well, such as pages that could not be
    /// drawn; a sentence without capital and full stop, mostly empty.
    const QString& notice() const { return iNotice; }
    bool isImporting() const { return iIsImporting; }

    void onBrowseFileAction();
    /// The code is not looked at, deliberately: whatever the panel reports is taken.
    void openPanelDidEnd(int returnCode, const QString& file);
    void onBrowseImagesAction();
    void onOpenTheFileAction();
    void onPageRangeTypeChangeAction();
    /// Imports what is typed, whatever the page range says.
    void onImportAction();
    void onCancelAction();
    void reject() override { onCancelAction(); }

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void awakeFromNib();
    void connectControls();
    void importAsked();
    void enableButtons(bool enabled);
    void fileChanged();
    void checkPageRange();
    bool isPageRangeRight() const;
    QString pageRange() const;
    void takeSight(const PDFGlance::Sight& sight);
    void rememberChoices();
    void startImport();
    void startImageImport();
    void anyThread_handleMSG(const Notification& notification);
    void mainThread_handleMSG(const Notification& notification);
    void importIsFinished(const ImportPDFOperation& operation, QSize firstPage);
    void imagesAreRead(const ImageImport& images);
    void setPageSize(QSize size);
    void endWell();
    void tellFailure(const QString& problem);
    void askForPassword(PDFOpenError error);

    AppSettings& iSettings;
    ImportForm* iForm;
    FileOpener iOpener = openWithDesktop;
    QStringList iImages; // the pages, when images were chosen instead of a PDF
    int iPageCount = 0; // of the PDF or of the images; 0 when unknown
    QTimer iTypingPause;
    PDFGlance iGlance{ [this](const PDFGlance::Sight& sight) { takeSight(sight); } };

    qint32 iPageWidth = 0;
    qint32 iPageHeight = 0;
    QString iNotice;
    bool iIsImporting = false;
    std::shared_ptr<FlashPageSource> iFlashPageSource;
    std::shared_ptr<FlashPagesAnnotations> iFlashPagesAnnotations;
    std::shared_ptr<FlashOutline> iFlashOutline;
    std::shared_ptr<ImportPDFOperation> iImportPDF; // the current or last one
    BackgroundQueue iQueue;
    NotificationCenter::Registration iProgress;
};

} // namespace leafcast
