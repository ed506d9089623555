// SPDX-License-Identifier: MIT
#include "Stage.h"

#include "app/PreviewPage.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <QActionGroup>
#include <QApplication>
#include <QPixmap>
#include <QScreen>
#include <QtCore/qtestsupport_core.h>
#include <QtWidgets/qtestsupport_widgets.h>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    constexpr int patienceMilliseconds = 120'000;
    // Long enough for a frame of the slowest fading.
    constexpr int stillMilliseconds = 400;

    QImage screenNow()
    {
        return QGuiApplication::primaryScreen()->grabWindow(0).toImage();
    }

} // namespace

Stage::Stage(const QDir& pictures, Appearance appearance)
    : iPictures(pictures)
{
    if (!iPictures.mkpath(u"sheets"_s))
        fail(u"can't make "_s + iPictures.path());
    QApplication::setCursorFlashTime(0);
    iDelegate.applicationDidFinishLaunching();
    for (QAction* choice : window().appearance->actions())
        if (choice->data().toInt() == static_cast<int>(appearance))
            choice->trigger();
    if (!QTest::qWaitForWindowActive(&window(), patienceMilliseconds))
        fail(u"the window does not become active"_s);
    fillTheScreen();
    waitForBook(1);
}

// Not every window manager heeds what a window wants to be from its first moment.
void Stage::fillTheScreen()
{
    window().showNormal();
    window().showMaximized();
    waitForFrame(window());
}

void Stage::waitForFrame(const QWidget& widget) const
{
    // Half a point is rounded to one where points have more pixels.
    const QRect screen = QGuiApplication::primaryScreen()->geometry().adjusted(-1, -1, 1, 1);
    waitFor(u"the frame of "_s + widget.windowTitle(), [&] {
        const QRect frame = widget.frameGeometry();
        return screen.contains(frame) && frame.top() < widget.geometry().top();
    });
}

Stage::~Stage()
{
    iDelegate.applicationWillTerminate();
}

QDialog& Stage::sheet() const
{
    const auto* above = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (!above)
        fail(u"no sheet is open"_s);
    return *const_cast<QDialog*>(above);
}

void Stage::waitFor(const QString& what, const std::function<bool()>& isSo) const
{
    if (!QTest::qWaitFor(isSo, patienceMilliseconds))
        fail(u"waited in vain for "_s + what);
}

void Stage::waitForBook(int place) const
{
    const QString isDrawn = uR"((() => {
        const sides = [...document.querySelectorAll('.side:not([hidden])')];
        const isOpen = document.querySelector('.page[data-place="%1"]') !== null;
        return isOpen && sides.length > 0 && sides.every((side) => side.dataset.drawn);
    })())"_s.arg(place);
    waitFor(u"page %1 of the book"_s.arg(place), [&] { return inBook(isDrawn).toBool(); });
}

void Stage::waitForNextBook(const std::function<void()>& action) const
{
    inBook(u"window.isFormer = true"_s);
    action();
    waitFor(u"the next book"_s, [&] { return inBook(u"window.isFormer !== true"_s).toBool(); });
}

void Stage::openPage(int place) const
{
    inBook(u"location.hash = '#page/%1'"_s.arg(place));
    waitForBook(place);
}

QVariant Stage::inBook(const QString& script) const
{
    // Shared, because the answer may come when nobody waits any more.
    const auto answer = std::make_shared<std::optional<QVariant>>();
    window().previewPage().runJavaScript(
        script, [answer](const QVariant& value) { *answer = value; });
    waitFor(u"an answer of the book"_s, [&] { return answer->has_value(); });
    return **answer;
}

void Stage::waitForNoSheet() const
{
    waitFor(u"the sheet to close"_s, [] { return !QApplication::activeModalWidget(); });
}

void Stage::photograph(const QString& name)
{
    QWidget* sheet = QApplication::activeModalWidget();
    if (!QTest::qWaitForWindowActive(sheet ? sheet : &window(), patienceMilliseconds))
        fail(u"no active window for "_s + name);
    QCursor::setPos(QGuiApplication::primaryScreen()->geometry().bottomRight());
    // What blinks shows a picture that was there before.
    std::vector<QImage> former;
    QImage seen = screenNow();
    waitFor(u"a still screen for "_s + name, [&] {
        former.push_back(std::move(seen));
        QTest::qWait(stillMilliseconds);
        seen = screenNow();
        return std::ranges::find(former, seen) != former.end();
    });
    save(seen, u"%1-%2.png"_s.arg(++iCount, 2, 10, QChar(u'0')).arg(name));
    if (sheet) {
        const qreal ratio = sheet->devicePixelRatioF();
        waitForFrame(*sheet);
        const QRect frame = sheet->frameGeometry().adjusted(1, 1, -1, -1);
        save(seen.copy(QRect(frame.topLeft() * ratio, frame.size() * ratio)),
            u"sheets/%1.png"_s.arg(name));
    }
}

void Stage::save(const QImage& picture, const QString& file) const
{
    if (!picture.save(iPictures.filePath(file)))
        fail(u"can't write "_s + file);
}

void Stage::fail(const QString& why)
{
    std::cerr << "screenshots: " << why.toStdString() << '\n';
    std::_Exit(1);
}

Hold::Hold(const QString& notificationName, int pageIndex)
    : iRegistration(NotificationCenter::defaultCenter().addObserver(
        notificationName, [this, pageIndex](const Notification& notification) {
            if (iIsHolding || notification.userInfo.value(u"pageIndex"_s).toInt() != pageIndex)
                return;
            iIsHolding = true;
            iEnd.acquire();
        }))
{
}

} // namespace leafcast
