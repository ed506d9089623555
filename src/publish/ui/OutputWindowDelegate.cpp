// SPDX-License-Identifier: MIT
#include "publish/ui/OutputWindowDelegate.h"

#include "base/Log.h"
#include "publish/PublishNotifications.h"
#include "publish/ui/OutputForm.h"
#include "widgets/ProblemLabel.h"
#include "widgets/SheetField.h"
#include "widgets/SheetFit.h"

#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QVBoxLayout>
#include <utility>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    constexpr int margin = 16;

    /// None for an empty field: the page then keeps its default.
    std::optional<QString> typedIn(const QLineEdit& field)
    {
        return field.text().trimmed().isEmpty() ? std::nullopt : std::optional(field.text());
    }

    /// So that a path has room; left alone, such a window is as wide as its question.
    void widen(const QMessageBox& question)
    {
        constexpr int textWidth = 380;
        for (auto* label : question.findChildren<QLabel*>(u"qt_msgbox_informativelabel"_s))
            label->setMinimumWidth(textWidth);
    }

} // namespace

OutputWindowDelegate::OutputWindowDelegate(QWidget* parent, AppSettings& settings)
    : QDialog(parent)
    , iSettings(settings)
    , iForm(new OutputForm(this))
{
    setWindowTitle(tr("Publish"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addWidget(iForm);
    new SheetFit(*this);
    connectControls();
    awakeFromNib();
}

OutputWindowDelegate::~OutputWindowDelegate()
{
    iProgress = {};
    if (iPublication)
        iPublication->cancel();
}

void OutputWindowDelegate::awakeFromNib()
{
    iForm->txtOutputFolder->setText(iSettings.lastOutputFileFolder());
    iForm->txtOutputName->setText(iSettings.lastOutputFileName());
    iForm->txtTitle->setText(iSettings.lastOutputFileTitle());
    if (QAbstractButton* choice = iForm->mOutputType->button(iSettings.outputType()))
        choice->setChecked(true);
    (iForm->txtOutputFolder->text().isEmpty() ? iForm->btnSelectFolder : iForm->btnPublish)
        ->setFocus();
    iProgress = NotificationCenter::defaultCenter().addObserver(
        ReaderDataProgressMSG, [this](const Notification& notification) {
            QMetaObject::invokeMethod(
                this, [this, notification] { showProgress(notification); }, Qt::QueuedConnection);
        });
}

void OutputWindowDelegate::connectControls()
{
    const auto on = [this](QPushButton* button, void (OutputWindowDelegate::*action)()) {
        connect(button, &QPushButton::clicked, this, action);
    };
    on(iForm->btnSelectFolder, &OutputWindowDelegate::onSelectFolder);
    on(iForm->btnOpenFolder, &OutputWindowDelegate::onOpenFolder);
    on(iForm->btnPublish, &OutputWindowDelegate::onPublish);
    on(iForm->btnCancel, &OutputWindowDelegate::onCancel);
}

void OutputWindowDelegate::setFlashTmpl(std::shared_ptr<FlashTemplate> flashTemplate)
{
    iParts.flashTemplate = std::move(flashTemplate);
}

void OutputWindowDelegate::setFlashPageSource(std::shared_ptr<FlashPageSource> source)
{
    iParts.pageSource = std::move(source);
}

void OutputWindowDelegate::setFlashOutline(std::shared_ptr<FlashOutline> outline)
{
    iParts.outline = std::move(outline);
}

void OutputWindowDelegate::setFlashPagesAnnotations(
    std::shared_ptr<FlashPagesAnnotations> annotations)
{
    iParts.annotations = std::move(annotations);
}

void OutputWindowDelegate::onSelectFolder()
{
    // A panel that is cancelled reports the folder that was there before.
    const QString former = iForm->txtOutputFolder->text();
    auto* panel = new QFileDialog(this, tr("Choose the folder of the book"), former);
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setFileMode(QFileDialog::Directory);
    panel->setOption(QFileDialog::ShowDirsOnly);
    panel->setLabelText(QFileDialog::Accept, tr("Choose folder"));
    connect(panel, &QDialog::finished, this, [this, panel, former](int code) {
        const QStringList folders = panel->selectedFiles();
        openPanelDidEnd(
            code, code == Accepted && !folders.isEmpty() ? folders.constFirst() : former);
    });
    panel->open();
}

void OutputWindowDelegate::openPanelDidEnd(int /*returnCode*/, const QString& folder)
{
    LOG_DEBUG("OutputWindowDelegate", u"die end,%1"_s.arg(folder));
    iForm->txtOutputFolder->setText(folder);
}

void OutputWindowDelegate::onOpenFolder()
{
    iOpener(iForm->txtOutputFolder->text());
}

void OutputWindowDelegate::onCancel()
{
    if (!iPublication)
        return done(Rejected);
    iPublication->cancel();
    iForm->lblInfo->showNote(tr("Stopping…"));
}

void OutputWindowDelegate::onPublish()
{
    if (iPublication)
        return;
    rememberChoices();
    iForm->lblInfo->showNote({});
    if (!iParts.pageSource || !iParts.flashTemplate)
        return iForm->lblInfo->showProblem(tr("There is no book to publish."));
    const auto publication = std::make_shared<BookPublication>(iParts, choices());
    if (const QString problem = publication->problem(); !problem.isEmpty())
        return iForm->lblInfo->showProblem(problem);
    if (const QString loss = publication->replacementProblem(); !loss.isEmpty())
        return askToReplace(loss, publication);
    start(publication);
}

void OutputWindowDelegate::rememberChoices()
{
    iSettings.setLastOutputFileFolder(iForm->txtOutputFolder->text());
    iSettings.setLastOutputFileName(iForm->txtOutputName->text());
    iSettings.setLastOutputFileTitle(iForm->txtTitle->text());
    iSettings.setOutputType(iForm->mOutputType->checkedId());
    iSettings.saveSettings();
}

BookPublication::Choices OutputWindowDelegate::choices() const
{
    return { .folder = iSettings.lastOutputFileFolder(),
        .name = iSettings.lastOutputFileName(),
        .kind = iSettings.outputType() == OutputForm::desktopPackage ? BookPlace::Kind::Package
                                                                     : BookPlace::Kind::Folder,
        .title = iSettings.lastOutputFileTitle(),
        .description = typedIn(*iForm->txtDescription),
        .keywords = typedIn(*iForm->txtKeywords) };
}

void OutputWindowDelegate::askToReplace(
    const QString& problem, const std::shared_ptr<BookPublication>& publication)
{
    auto* question = new QMessageBox(QMessageBox::Warning, windowTitle(),
        tr("Publish there all the same?"), QMessageBox::Cancel, this);
    question->setObjectName(u"replaceQuestion"_s);
    question->setAttribute(Qt::WA_DeleteOnClose);
    question->setTextFormat(Qt::PlainText);
    question->setInformativeText(asSentence(problem));
    widen(*question);
    const auto* agree = question->addButton(tr("Publish"), QMessageBox::DestructiveRole);
    question->setDefaultButton(QMessageBox::Cancel);
    connect(question, &QMessageBox::buttonClicked, this,
        [this, agree, publication](const QAbstractButton* button) {
            if (button == agree)
                start(publication);
        });
    question->open();
}

void OutputWindowDelegate::start(std::shared_ptr<BookPublication> publication)
{
    iPublication = std::move(publication);
    enableControls(false);
    iForm->lblInfo->showNote(tr("Publishing…"));
    iQueue.add([running = iPublication] { running->run(); }, [this] { publicationEnded(); });
}

void OutputWindowDelegate::enableControls(bool enabled)
{
    const QList<QWidget*> controls{ iForm->txtOutputFolder, iForm->btnSelectFolder,
        iForm->txtOutputName, iForm->txtTitle, iForm->txtDescription, iForm->txtKeywords,
        iForm->btnPublish };
    for (QWidget* control : controls)
        control->setEnabled(enabled);
    for (QAbstractButton* choice : iForm->mOutputType->buttons())
        choice->setEnabled(enabled);
    iForm->prgBar->setRange(0, 0);
    iForm->prgBar->setHidden(enabled);
}

void OutputWindowDelegate::showProgress(const Notification& notification)
{
    if (!iPublication || iPublication->isCancelled())
        return;
    const int page = notification.userInfo.value(u"pageIndex"_s).toInt();
    const int total = notification.userInfo.value(u"totalPage"_s).toInt();
    iForm->lblInfo->showNote(tr("Reading the text of the pages: %1/%2").arg(page).arg(total));
    iForm->prgBar->setRange(0, total);
    iForm->prgBar->setValue(page);
}

void OutputWindowDelegate::publicationEnded()
{
    const auto ended = std::exchange(iPublication, nullptr);
    enableControls(true);
    iForm->lblInfo->showNote({});
    if (!ended->failure().isEmpty())
        iForm->lblInfo->showProblem(ended->failure());
    else if (ended->isCancelled())
        iForm->lblInfo->showProblem(
            tr("Publishing was stopped; the book in %1 is not complete.").arg(ended->bookPath()));
    else
        askToOpen(ended->outputFileName());
}

void OutputWindowDelegate::askToOpen(const QString& path)
{
    auto* alert = new QMessageBox(QMessageBox::Information, windowTitle(),
        tr("Open the result files?"), QMessageBox::NoButton, this);
    alert->setObjectName(u"openQuestion"_s);
    alert->setAttribute(Qt::WA_DeleteOnClose);
    alert->setInformativeText(tr("Publish finished! Open the it?"));
    QPushButton* open = alert->addButton(tr("Open it"), QMessageBox::AcceptRole);
    alert->setEscapeButton(alert->addButton(tr("No"), QMessageBox::RejectRole));
    alert->setDefaultButton(open);
    connect(alert, &QDialog::finished, this, [this, alert, open, path] {
        if (alert->clickedButton() == open)
            iOpener(path);
        done(Accepted);
    });
    alert->open();
}

} // namespace leafcast
