// SPDX-License-Identifier: MIT
#include "pages/ui/ImportWindowDelegate.h"

#include "base/Log.h"
#include "pages/ImageFiles.h"
#include "pages/ui/ImportForm.h"
#include "widgets/ProblemLabel.h"
#include "widgets/SheetField.h"

#include <optional>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QMimeData>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    bool isPDF(const QString& path)
    {
        return QFileInfo(path).suffix().compare(u"pdf"_s, Qt::CaseInsensitive) == 0;
    }

    bool isUsable(const QString& path)
    {
        return isPDF(path) || ImageFiles::isImage(path) || QFileInfo(path).isDir();
    }

    QStringList usableFiles(const QMimeData& data)
    {
        QStringList paths;
        for (const QUrl& url : data.urls())
            if (url.isLocalFile() && isUsable(url.toLocalFile()))
                paths.append(url.toLocalFile());
        return paths;
    }

} // namespace

void ImportWindowDelegate::takeFiles(const QStringList& paths)
{
    iForm->btnOK->setFocus();
    for (const QString& path : paths)
        if (isPDF(path))
            return iForm->txtImportFile->setText(path);
    QStringList images = ImageFiles::from(paths);
    images.removeIf([](const QString& path) { return !ImageFiles::isImage(path); });
    if (images.isEmpty())
        return;
    iForm->txtImportFile->setText(images.constFirst()); // which forgets earlier ones
    iImages = images;
    iPageCount = static_cast<int>(images.size());
    iForm->lblImages->setText(tr("Images that become the pages: %1").arg(images.size()));
    iForm->lblImages->setVisible(true);
    checkPageRange();
}

void ImportWindowDelegate::fileChanged()
{
    const QString path = iForm->txtImportFile->text();
    iImages.clear();
    iForm->lblImages->hide();
    iForm->showPassword(false);
    iForm->txtPassword->clear();
    if (!iIsImporting)
        iForm->lblInfo->hide();
    iPageCount = 0;
    iGlance.forget();
    iTypingPause.stop();
    if (ImageFiles::isImage(path))
        iImages = { path };
    else if (QFileInfo(path).isFile())
        iTypingPause.start();
    checkPageRange();
}

void ImportWindowDelegate::takeSight(const PDFGlance::Sight& sight)
{
    iPageCount = sight.pageCount;
    if (iForm->txtPassword->isHidden()) // an import may have asked already
        askForPassword(sight.error);
    checkPageRange();
}

void ImportWindowDelegate::askForPassword(PDFOpenError error)
{
    if (error != PDFOpenError::Locked && error != PDFOpenError::WrongPassword)
        return;
    iForm->showPassword(true);
    if (iIsImporting)
        return;
    iForm->lblInfo->showProblem(error == PDFOpenError::Locked
            ? tr("The PDF is locked; type its password.")
            : tr("This password does not open the PDF."));
    iForm->txtPassword->setFocus();
    iForm->txtPassword->selectAll();
}

void ImportWindowDelegate::onBrowseFileAction()
{
    auto* panel = new QFileDialog(this, tr("Choose a PDF"));
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setFileMode(QFileDialog::ExistingFile);
    panel->setNameFilter(tr("PDF documents (*.pdf *.PDF)"));
    // A panel that is cancelled reports the file that was there before.
    const QString former = iForm->txtImportFile->text();
    connect(panel, &QDialog::finished, this, [this, panel, former](int code) {
        const QStringList files = panel->selectedFiles();
        openPanelDidEnd(code, code == Accepted && !files.isEmpty() ? files.constFirst() : former);
    });
    panel->open();
}

void ImportWindowDelegate::openPanelDidEnd(int /*returnCode*/, const QString& file)
{
    LOG_INFO("ImportWindowDelegate", u"die end,%1"_s.arg(file));
    iForm->txtImportFile->setText(file);
}

void ImportWindowDelegate::onBrowseImagesAction()
{
    auto* panel = new QFileDialog(this, tr("Choose the pages"));
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setFileMode(QFileDialog::ExistingFiles);
    panel->setNameFilter(tr("Images (*.jpg *.jpeg *.png *.gif)"));
    connect(panel, &QFileDialog::filesSelected, this, &ImportWindowDelegate::takeFiles);
    panel->open();
}

void ImportWindowDelegate::onOpenTheFileAction()
{
    iOpener(iForm->txtImportFile->text());
}

void ImportWindowDelegate::startImageImport()
{
    const auto images = std::make_shared<std::optional<ImageImport>>();
    iImportPDF.reset();
    iQueue.add([images, files = iImages, range = pageRange()] { images->emplace(files, range); },
        [this, images] {
            if (iIsImporting && *images)
                imagesAreRead(**images);
        });
}

void ImportWindowDelegate::imagesAreRead(const ImageImport& images)
{
    enableButtons(true);
    iIsImporting = false;
    if (!images.pageSource)
        return tellFailure(images.problem);
    iFlashPageSource = images.pageSource;
    setPageSize(images.pageSize);
    endWell();
}

void ImportWindowDelegate::dragEnterEvent(QDragEnterEvent* event)
{
    if (!iIsImporting && !usableFiles(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void ImportWindowDelegate::dropEvent(QDropEvent* event)
{
    takeFiles(usableFiles(*event->mimeData()));
    event->acceptProposedAction();
}

} // namespace leafcast
