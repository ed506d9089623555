// SPDX-License-Identifier: MIT
#include "pages/ui/ImportWindowDelegate.h"

#include "base/Log.h"
#include "pages/import/ImportProblem.h"
#include "pages/ImportNotifications.h"
#include "pages/ImportQuality.h"
#include "pages/ImportSentences.h"
#include "pages/PageRangeCheck.h"
#include "pages/ui/ImportForm.h"
#include "widgets/ProblemLabel.h"
#include "widgets/SheetField.h"
#include "widgets/SheetFit.h"

#include <QFileInfo>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    constexpr qint32 importDPI = 144;
    constexpr int margin = 16;
    constexpr int workerNiceness = 19; // the window answers while every core draws pages
    constexpr int typingPauseMilliseconds = 300;

    /// In points, truncated; 0 x 0 when there is none.
    QSize firstPageSize(const ImportPDFOperation& operation)
    {
        const auto& source = operation.flashPageSource();
        const auto document = source ? source->document() : nullptr;
        const auto page = document ? document->pageAtIndex(0) : std::nullopt;
        const PDFRect box = page ? page->boundsForBox(PDFBox::CropBox) : PDFRect();
        return { static_cast<int>(box.width), static_cast<int>(box.height) };
    }

} // namespace

ImportWindowDelegate::ImportWindowDelegate(QWidget* parent, AppSettings& settings)
    : QDialog(parent)
    , iSettings(settings)
    , iForm(new ImportForm(this))
{
    setWindowTitle(tr("Import"));
    setAcceptDrops(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addWidget(iForm);
    new SheetFit(*this);
    iTypingPause.setSingleShot(true);
    iTypingPause.setInterval(typingPauseMilliseconds);
    connectControls();
    awakeFromNib();
}

ImportWindowDelegate::~ImportWindowDelegate()
{
    iProgress = {};
    if (iImportPDF)
        iImportPDF->cancel();
}

void ImportWindowDelegate::awakeFromNib()
{
    iForm->txtImportFile->setText(iSettings.lastImportedFile());
    QAbstractButton* choice = iForm->pageRangeType->button(iSettings.importPageRangeType());
    (choice ? choice : iForm->pageRangeType->button(ImportForm::allPages))->setChecked(true);
    iForm->txtPageRange->setText(iSettings.importPageRange());
    iForm->importQuality->setCurrentIndex(iSettings.importQualityLevel());
    iForm->btnImportLinks->setChecked(iSettings.importLinks() == 1);
    iForm->btnImportBookMark->setChecked(iSettings.importBookmark() == 1);
    iProgress = NotificationCenter::defaultCenter().addObserver(ImportProgressInfoMSG,
        [this](const Notification& notification) { anyThread_handleMSG(notification); });
    enableButtons(true);
    // The file field would show the end of a long path only while it has the focus.
    (iForm->txtImportFile->text().isEmpty() ? iForm->btnBrowse : iForm->btnOK)->setFocus();
}

void ImportWindowDelegate::connectControls()
{
    const auto on = [this](QPushButton* button, void (ImportWindowDelegate::*action)()) {
        connect(button, &QPushButton::clicked, this, action);
    };
    on(iForm->btnBrowse, &ImportWindowDelegate::onBrowseFileAction);
    on(iForm->btnBrowseImages, &ImportWindowDelegate::onBrowseImagesAction);
    on(iForm->btnOpenFile, &ImportWindowDelegate::onOpenTheFileAction);
    on(iForm->btnOK, &ImportWindowDelegate::importAsked);
    on(iForm->btnCancel, &ImportWindowDelegate::onCancelAction);
    connect(
        iForm->txtImportFile, &QLineEdit::textChanged, this, &ImportWindowDelegate::fileChanged);
    connect(
        iForm->txtPageRange, &QLineEdit::textChanged, this, &ImportWindowDelegate::checkPageRange);
    connect(iForm->pageRangeType, &QButtonGroup::idToggled, this,
        &ImportWindowDelegate::onPageRangeTypeChangeAction);
    connect(&iTypingPause, &QTimer::timeout, this,
        [this] { iGlance.look(iForm->txtImportFile->text()); });
}

void ImportWindowDelegate::onPageRangeTypeChangeAction()
{
    // During an import too the choice may be changed, which is for the next one then.
    if (!iIsImporting)
        enableButtons(true);
    checkPageRange();
}

/// The label and the bar belong to a running import.
void ImportWindowDelegate::enableButtons(bool enabled)
{
    const bool isTyped = iForm->pageRangeType->checkedId() == ImportForm::typedRange;
    iForm->btnOK->setEnabled(enabled);
    iForm->txtImportFile->setEnabled(enabled);
    iForm->txtPageRange->setEnabled(enabled && isTyped);
    iForm->importQuality->setEnabled(enabled);
    iForm->btnBrowse->setEnabled(enabled);
    iForm->btnBrowseImages->setEnabled(enabled);
    iForm->txtPassword->setEnabled(enabled);
    iForm->lblInfo->setHidden(enabled);
    iForm->prgBar->setHidden(enabled);
    iForm->prgBar->setRange(0, 0);
}

void ImportWindowDelegate::checkPageRange()
{
    const bool isTyped = iForm->pageRangeType->checkedId() == ImportForm::typedRange;
    const QString problem
        = isTyped ? PageRangeCheck::problem(iForm->txtPageRange->text(), iPageCount) : QString();
    iForm->txtPageRange->setWrong(!problem.isEmpty());
    iForm->lblPageRange->showProblem(problem);
}

bool ImportWindowDelegate::isPageRangeRight() const
{
    return !iForm->txtPageRange->isWrong();
}

QString ImportWindowDelegate::pageRange() const
{
    const bool isTyped = iForm->pageRangeType->checkedId() == ImportForm::typedRange;
    return isTyped ? iForm->txtPageRange->text() : u"ALL"_s;
}

void ImportWindowDelegate::importAsked()
{
    checkPageRange();
    if (isPageRangeRight())
        onImportAction();
    else
        iForm->txtPageRange->setFocus();
}

void ImportWindowDelegate::onImportAction()
{
    if (iImages.isEmpty() && !QFileInfo::exists(iForm->txtImportFile->text())) {
        iForm->lblInfo->showProblem(tr("Import PDF file does not exist."));
        return;
    }
    iIsImporting = true;
    rememberChoices();
    enableButtons(false);
    iForm->lblInfo->showNote(tr("Importing…"));
    iSettings.saveSettings();
    iFlashPageSource.reset();
    iFlashPagesAnnotations.reset();
    iFlashOutline.reset();
    iNotice.clear();
    LOG_DEBUG("ImportWindowDelegate", u"start to import pdf now..."_s);
    if (iImages.isEmpty())
        startImport();
    else
        startImageImport();
}

void ImportWindowDelegate::rememberChoices()
{
    if (iImages.isEmpty())
        iSettings.setLastImportedFile(iForm->txtImportFile->text());
    iSettings.setImportPageRangeType(iForm->pageRangeType->checkedId());
    iSettings.setImportQualityLevel(iForm->importQuality->currentIndex());
    iSettings.setImportPageRange(iForm->txtPageRange->text());
    iSettings.setImportBookmark(iForm->btnImportBookMark->isChecked() ? 1 : 0);
    iSettings.setImportLinks(iForm->btnImportLinks->isChecked() ? 1 : 0);
}

void ImportWindowDelegate::startImport()
{
    iPageWidth = 0;
    iPageHeight = 0;
    if (iImportPDF)
        iImportPDF->cancel();
    const QString range = pageRange();
    LOG_DEBUG("ImportWindowDelegate", u"page range is:%1"_s.arg(range));
    iQueue.letGo(std::move(iImportPDF));
    iImportPDF = std::make_shared<ImportPDFOperation>(iForm->txtImportFile->text(), range,
        importDPI, qualityOfLevel(iSettings.importQualityLevel()),
        PDFImportOptions{
            .password = iForm->txtPassword->text(), .limits = { .niceness = workerNiceness } });
    iImportPDF->setImportLinks(iSettings.importLinks() == 1);
    iImportPDF->setImportBookmarks(iSettings.importBookmark() == 1);
    LOG_DEBUG("ImportWindowDelegate", u"before add operation"_s);
    const auto operation = iImportPDF;
    const auto size = std::make_shared<QSize>(0, 0);
    const auto work = [operation, size] {
        operation->main();
        *size = firstPageSize(*operation); // here, because it asks the PDF service
    };
    iQueue.add(work, [this, operation, size] {
        // One that was cancelled in favour of the next is nobody's concern.
        if (operation == iImportPDF)
            importIsFinished(*operation, *size);
    });
    LOG_DEBUG("ImportWindowDelegate", u"after add operation"_s);
}

void ImportWindowDelegate::anyThread_handleMSG(const Notification& notification)
{
    QMetaObject::invokeMethod(
        this, [this, notification] { mainThread_handleMSG(notification); }, Qt::QueuedConnection);
}

void ImportWindowDelegate::mainThread_handleMSG(const Notification& notification)
{
    if (iForm->lblInfo->isHidden() || !iIsImporting)
        return;
    const int page = notification.userInfo.value(u"pageIndex"_s).toInt();
    const int total = notification.userInfo.value(u"totalPage"_s).toInt();
    iForm->lblInfo->showNote(tr("Importing:%1/%2").arg(page).arg(total));
    // Listing the pages afterwards takes no time; the bar does not run twice.
    if (notification.userInfo.value(u"type"_s) != u"geneatePage"_s)
        return;
    iForm->prgBar->setRange(0, total);
    iForm->prgBar->setValue(page);
}

void ImportWindowDelegate::importIsFinished(const ImportPDFOperation& operation, QSize firstPage)
{
    LOG_DEBUG("ImportWindowDelegate", u"import pdf isFinished."_s);
    enableButtons(true);
    iIsImporting = false;
    const QString problem = importProblem(iForm->txtImportFile->text(), operation);
    if (!operation.flashPageSource() || !problem.isEmpty()) {
        tellFailure(problem);
        if (operation.flashPageSource())
            askForPassword(operation.flashPageSource()->openResult().error);
        return;
    }
    iNotice = ImportSentences::pagesNotDrawn(operation.flashPageSource()->pageReports());
    iFlashPageSource = operation.flashPageSource();
    iFlashPagesAnnotations = operation.flashPagesAnnotation();
    iFlashOutline = operation.flashOutline();
    setPageSize(firstPage);
    endWell();
}

void ImportWindowDelegate::tellFailure(const QString& problem)
{
    LOG_WARN("ImportWindowDelegate", u"import pdf failed..."_s);
    iForm->lblInfo->showProblem(problem);
}

void ImportWindowDelegate::setPageSize(QSize size)
{
    iPageWidth = size.width();
    iPageHeight = size.height();
    iSettings.setPageWidth(iPageWidth);
    iSettings.setPageHeight(iPageHeight);
    iSettings.saveSettings();
}

void ImportWindowDelegate::endWell()
{
    LOG_DEBUG("ImportWindowDelegate", u"import pdf ok..."_s);
    iForm->txtPassword->clear();
    done(Accepted);
}

void ImportWindowDelegate::onCancelAction()
{
    LOG_INFO("ImportWindowDelegate", u"cancel import pdf!!,%1"_s.arg(windowTitle()));
    enableButtons(true);
    if (iQueue.isEmpty())
        return done(Rejected);
    if (iImportPDF)
        iImportPDF->cancel();
    else
        iIsImporting = false; // what is read of images by now is not taken
}

} // namespace leafcast
