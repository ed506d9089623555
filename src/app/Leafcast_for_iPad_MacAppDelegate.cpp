// SPDX-License-Identifier: MIT
#include "app/Leafcast_for_iPad_MacAppDelegate.h"

#include "app/ApplyItem.h"
#include "app/AppName.h"
#include "app/Look.h"
#include "app/MainWindow.h"
#include "app/PreviewPage.h"
#include "app/SupportFolder.h"
#include "base/FileSteps.h"
#include "base/Log.h"
#include "base/LogConfiguration.h"
#include "base/ResourceFolder.h"
#include "pages/FlashPageSourceImg.h"
#include "settings/HXCUtility.h"
#include "templates/TemplateNotifications.h"
#include "templates/ui/PropertyPanel.h"

#include <QActionGroup>
#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <QMenu>
#include <QScreen>
#include <QSplitter>
#include <QUrl>
#include <utility>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {
    constexpr auto logger = "Leafcast_for_iPad_MacAppDelegate";

    void fillTheScreen(QWidget& window)
    {
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        window.move(screen.topLeft()); // with its frame
        window.resize(screen.size());
        window.setWindowState(Qt::WindowMaximized); // so that all of it is on the screen
    }
} // namespace

Leafcast_for_iPad_MacAppDelegate::Leafcast_for_iPad_MacAppDelegate(QObject* parent)
    : QObject(parent)
{
    connect(
        &iPreview, &PreviewBook::written, this, &Leafcast_for_iPad_MacAppDelegate::previewWritten);
    connect(
        &iTask, &PreviewServer::changed, this, &Leafcast_for_iPad_MacAppDelegate::showAddresses);
}

Leafcast_for_iPad_MacAppDelegate::~Leafcast_for_iPad_MacAppDelegate() = default;

void Leafcast_for_iPad_MacAppDelegate::prepaireTheLog()
{
    QString base = applicationSupportFolder();
    if (base.isEmpty())
        base = QDir::homePath() + u"/Library/Application Support"_s;
    const QString logFile = base + u"/Quorvane/%1/%2.log"_s.arg(u"FlipBook"_s, APP_NAME);
    LogConfiguration::configureFromFile(
        ResourceFolder::pathForResource(u"logging"_s, u"properties"_s), logFile);
}

void Leafcast_for_iPad_MacAppDelegate::applicationDidFinishLaunching()
{
    prepaireTheLog();
    applyLook(iMemory.appearance());
    iWindow = std::make_unique<MainWindow>();
    followAppearance();
    LOG_INFO(logger, u"version is:%1"_s.arg(QCoreApplication::applicationVersion()));
    iFlashPreviewFolder = u""_s;
    placeWindow();
    makeSampleBook();
    iFlashTmpl = std::make_shared<FlashTemplate>();
    iWindow->properties().setFlashTmpl(iFlashTmpl);
    auto& center = NotificationCenter::defaultCenter();
    iTipRegistration = center.addObserver(UpdateFlashTmplProTipNotification,
        [this](const Notification&) { updateTmplPropertyTip(); });
    iValueRegistration = center.addObserver(FlashTmplProValueChangedNotification,
        [this](const Notification&) { tmplPpertyValueChanged(); });
    connectCommands();
    applyChange();
    iWindow->setWindowTitle(APP_NAME);
}

void Leafcast_for_iPad_MacAppDelegate::placeWindow()
{
    if (!iMemory.restore(*iWindow, iWindow->splitter()))
        fillTheScreen(*iWindow);
    iWindow->show();
}

void Leafcast_for_iPad_MacAppDelegate::followAppearance()
{
    for (QAction* choice : iWindow->appearance->actions())
        choice->setChecked(choice->data().toInt() == static_cast<int>(iMemory.appearance()));
    connect(iWindow->appearance, &QActionGroup::triggered, this, [this](const QAction* choice) {
        iMemory.setAppearance(static_cast<Appearance>(choice->data().toInt()));
        applyLook(iMemory.appearance());
    });
}

void Leafcast_for_iPad_MacAppDelegate::makeSampleBook()
{
    auto source = std::make_shared<FlashPageSourceImg>();
    for (const QString& picture : ResourceFolder::pathsForResourcesOfType(u"jpg"_s, u"DemoImgs"_s))
        source->addImgPageFromFile(picture);
    source->generateNormalPages();
    iFlashPageSource = std::move(source);
}

void Leafcast_for_iPad_MacAppDelegate::makeFlashPreviewFolder()
{
    const QString support = applicationSupportFolder();
    iFlashPreviewFolder
        = (support.isEmpty() ? u"/temp"_s : support) + u"/LeafcastforiPad/preview/"_s;
    if (!FileSteps::exists(iFlashPreviewFolder) && !QDir().mkpath(iFlashPreviewFolder))
        LOG_WARN(logger, u"The preview folder cannot be crearted[%1]"_s.arg(iFlashPreviewFolder));
    HXCUtility::makeDiractoryTrustByFlash(iFlashPreviewFolder);
}

void Leafcast_for_iPad_MacAppDelegate::removeFlashPreviewFolder()
{
    if (!iFlashPreviewFolder.isEmpty() && FileSteps::exists(iFlashPreviewFolder))
        FileSteps::remove(iFlashPreviewFolder);
}

void Leafcast_for_iPad_MacAppDelegate::RunServer()
{
    iTask.start(QDir::cleanPath(iFlashPreviewFolder));
}

void Leafcast_for_iPad_MacAppDelegate::applicationWillTerminate()
{
    if (iWindow)
        iMemory.save(*iWindow, iWindow->splitter());
    iPreview.stop(); // it would write into the folder that is removed
    iTask.stop();
    removeFlashPreviewFolder();
}

void Leafcast_for_iPad_MacAppDelegate::tmplPpertyValueChanged()
{
    iWindow->applyItem().setPending();
}

void Leafcast_for_iPad_MacAppDelegate::applyChange()
{
    iWindow->applyItem().rest();
    if (iFlashPreviewFolder.isEmpty())
        makeFlashPreviewFolder();
    iPreview.write({ iFlashPageSource, iFlashTmpl, iFlashPagesAnnotations, iFlashOutline },
        iFlashPreviewFolder);
}

void Leafcast_for_iPad_MacAppDelegate::previewWritten(const QString& page)
{
    iWindow->previewPage().setBookFolder(QDir::cleanPath(iFlashPreviewFolder));
    iWindow->showPreview(QUrl::fromLocalFile(page));
    iWindow->showSummary(tr("Pages: %1   Template: %2   Style: %3")
                             .arg(QString::number(iFlashPageSource->normalPages().size()),
                                 iFlashTmpl->tmplName(), styleShown()));
    Q_EMIT previewShown();
    // The server lies in the book, so that it can't run before the first one is written.
    if (!iTask.isRunning() && iTask.failure().isEmpty())
        RunServer();
}

QString Leafcast_for_iPad_MacAppDelegate::styleShown() const
{
    return iFlashTmpl->styleName().isEmpty() ? iFlashTmpl->defaultSytleName()
                                             : iFlashTmpl->styleName();
}

void Leafcast_for_iPad_MacAppDelegate::updateTmplPropertyTip()
{
    iWindow->properties().updateTmplPropertyTip();
}

void Leafcast_for_iPad_MacAppDelegate::setFlashPageSource(std::shared_ptr<FlashPageSource> source)
{
    iFormerSources.letGo(std::exchange(iFlashPageSource, std::move(source)));
}

void Leafcast_for_iPad_MacAppDelegate::setFlashPagesAnnotations(
    std::shared_ptr<FlashPagesAnnotations> annotations)
{
    iFlashPagesAnnotations = std::move(annotations);
}

void Leafcast_for_iPad_MacAppDelegate::setFlashOutline(std::shared_ptr<FlashOutline> outline)
{
    iFlashOutline = std::move(outline);
}

} // namespace leafcast
