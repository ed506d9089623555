// SPDX-License-Identifier: MIT
#include "publish/FlashBookOutput.h"

#include "base/FileSteps.h"
#include "base/Log.h"
#include "base/TextDecoding.h"
#include "pages/ImageHeader.h"
#include "settings/AppSettings.h"

#include <QCoreApplication>
#include <QThread>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    constexpr auto homePage = "https://leafcast.example/"_L1;

    constexpr auto orgtFunction
        = "function orgt(s) {return binl2hex(core_hx(str2binl(s), s.length * chrsz));}"_L1;

    constexpr auto fixedMembers
        = "var bookConfig = {searchColor:\"#00ffff\",searchAlpha:0.3,"
          "SearchButtonVisible:\"false\",BookMarkButtonVisible:\"false\","_L1;

    constexpr auto pathMembers
        = "normalPath:\"files/page/\",largePath:\"files/page/\",thumbPath:\"files/page/\","_L1;

    constexpr auto productMembers
        = "productName:\"Demo created by Leafcast for iPad\",homePage:\""_L1;

    QString pageMembers(qsizetype pageCount, QSize pageSize)
    {
        return u"totalPageCount:%1,largePageWidth:%2,largePageHeight:%3,"_s.arg(
            QString::number(pageCount), QString::number(pageSize.width()),
            QString::number(pageSize.height()));
    }

    /// The settings belong to the main thread; a writer on another one leaves them a message.
    void storePageSize(QSize size)
    {
        const auto store = [size] {
            AppSettings::shareInstance().setPageWidth(size.width());
            AppSettings::shareInstance().setPageHeight(size.height());
        };
        QCoreApplication* application = QCoreApplication::instance();
        if (!application || application->thread() == QThread::currentThread())
            store();
        else
            QMetaObject::invokeMethod(application, store, Qt::QueuedConnection);
    }

    /// Its bytes, which the book's script begins with; none when it is no UTF-8 text.
    std::optional<QByteArray> templateScript(const QString& path)
    {
        auto script = FileSteps::read(path);
        if (!script || isValidUtf8(*script))
            return script;
        LOG_WARN("FlashBookOutput", u"%1 is not UTF-8 text"_s.arg(path));
        return std::nullopt;
    }

} // namespace

void FlashBookOutput::bookXML(const QString& path)
{
    takePageSize();
    const auto head = templateScript(iFlashTemplate->GetTheMainJSPath());
    keepResult(
        head && FileSteps::writeAtomically(path, *head + configurationText().toUtf8()), path);
}

QString FlashBookOutput::configurationText() const
{
    return orgtFunction + fixedMembers + iFlashTemplate->exportPropertiesSettingsTo1()
        + pageMembers(qsizetype(iFlashPageSource->pages().size()), iPageSize) + pathMembers
        + productMembers + homePage + "\"};"_L1 + "var pageEditor = [];ols=[]"_L1;
}

void FlashBookOutput::takePageSize()
{
    if (iFlashPageSource->pages().empty())
        return;
    // Always this name, whatever the first page's number is.
    iPageSize = ImageHeader::sizeInPoints(inResources(iSaveToFolder, u"page/1.jpg"_s));
    storePageSize(iPageSize);
}

} // namespace leafcast
