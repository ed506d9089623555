// SPDX-License-Identifier: MIT
#include "app/ApplyItem.h"
#include "app/Leafcast_for_iPad_MacAppDelegate.h"
#include "app/MainWindow.h"
#include "base/FileSteps.h"
#include "support/HomeFolder.h"
#include "support/PDFBuilder.h"
#include "support/TemporaryResources.h"
#include "support/TestFiles.h"
#include "templates/ui/PropertyPanel.h"

#include <gtest/gtest.h>
#include <QAbstractButton>
#include <QDialog>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace leafcast {

/// The application over a home folder of its own.
class AppDelegateTest : public testing::Test {
protected:
    using Delegate = Leafcast_for_iPad_MacAppDelegate;

    void start()
    {
        delegate.applicationDidFinishLaunching();
        waitForPreview();
    }
    /// For one more than there were after the last call.
    void waitForPreview()
    {
        waitFor([this] { return !shown.isEmpty(); });
        shown.takeFirst();
    }
    template <typename Condition> static void waitFor(Condition condition)
    {
        constexpr int patienceMilliseconds = 60'000;
        ASSERT_TRUE(QTest::qWaitFor(condition, patienceMilliseconds));
    }

    template <typename Object> Object* child(const QString& name)
    {
        auto* found = delegate.window()->findChild<Object*>(name);
        EXPECT_NE(found, nullptr) << name.toStdString();
        return found;
    }
    /// The sheet that is open.
    QDialog* sheet()
    {
        for (auto* dialog : delegate.window()->findChildren<QDialog*>())
            if (dialog->isVisible())
                return dialog;
        return nullptr;
    }
    void clickInSheet(const QString& name) { sheet()->findChild<QAbstractButton*>(name)->click(); }

    QString value(const QString& key) const
    {
        return delegate.flashTmpl()->propertyForKey(key)->value();
    }
    void change(const QString& key, const QString& text)
    {
        delegate.window()->properties().tmplDelegate().setObjectValue(
            text, u"value"_s, *delegate.flashTmpl()->propertyForKey(key));
    }
    QByteArray previewFile(const QString& name) const
    {
        return FileSteps::read(delegate.flashPreviewFolder() + name).value_or("none");
    }
    QString addPDF(const QString& name, int pages) const
    {
        PDFBuilder pdf;
        for (int page = 0; page < pages; ++page)
            pdf.addPage({ .cropBox = PDFBuilder::Box{ 0, 0, 300, 400 } });
        return writeTestFile(home.path(name), pdf.build());
    }
    void import(const QString& pdf)
    {
        delegate.importFiles({ pdf });
        clickInSheet(u"btnOK"_s);
        waitForPreview();
    }

    HomeFolder home;
    Delegate delegate;
    QSignalSpy shown{ &delegate, &Delegate::previewShown };
};

TEST_F(AppDelegateTest, ShowsTheSampleBookAndLeavesNothingBehind)
{
    const QString folder = home.dataFolder() + u"/LeafcastforiPad/preview/"_s;
    writeTestFile(folder + u"left-by-a-crash"_s, "");
    start();
    EXPECT_EQ(delegate.flashPreviewFolder(), folder);
    EXPECT_GT(delegate.flashPageSource()->normalPages().size(), 0U);
    EXPECT_EQ(delegate.flashTmpl()->tmplName(), u"float"_s);
    EXPECT_TRUE(previewFile(u"index.html"_s).contains("<title>Preview</title>"));
    EXPECT_TRUE(FileSteps::exists(folder + u"files/page/1.jpg"_s));
    waitFor([this] { return !delegate.server().addresses().isEmpty(); });

    delegate.applicationWillTerminate();
    EXPECT_FALSE(delegate.server().isRunning());
    EXPECT_FALSE(FileSteps::exists(folder));
}

TEST_F(AppDelegateTest, EndsThePreviewThatIsBeingWrittenWhenItQuits)
{
    start();
    delegate.applyChange();
    delegate.applyChange();
    delegate.applicationWillTerminate();
    QCoreApplication::processEvents();
    EXPECT_TRUE(shown.isEmpty());
    EXPECT_FALSE(delegate.server().isRunning());
    EXPECT_FALSE(FileSteps::exists(delegate.flashPreviewFolder()));
}

TEST_F(AppDelegateTest, WaitsWithChangesUntilTheyAreApplied)
{
    start();
    for (int number = 0; number < 10; ++number)
        change(u"backgroundColor"_s, u"0x00000%1"_s.arg(number));
    EXPECT_TRUE(delegate.window()->applyItem().isPending());
    change(u"bookTitle"_s, u"Leaves"_s);
    QCoreApplication::processEvents();
    EXPECT_FALSE(previewFile(u"javascript/main.js"_s).contains("#000009"));

    delegate.window()->applyItem().trigger();
    EXPECT_FALSE(delegate.window()->applyItem().isPending());
    waitForPreview();
    EXPECT_TRUE(previewFile(u"javascript/main.js"_s).contains("#000009"));
    delegate.window()->applyItem().trigger(); // with nothing pending
    waitForPreview();
}

TEST_F(AppDelegateTest, StaysAtRestWhenAPropertyKeepsItsValue)
{
    start();
    change(u"backgroundColor"_s, value(u"backgroundColor"_s));
    EXPECT_FALSE(delegate.window()->applyItem().isPending());
}

TEST_F(AppDelegateTest, TakesOverWhatWasImported)
{
    start();
    import(addPDF(u"new.pdf"_s, 3));
    EXPECT_EQ(value(u"pageWidth"_s), u"300"_s);
    EXPECT_EQ(value(u"pageHeight"_s), u"400"_s);
    EXPECT_EQ(delegate.flashPageSource()->normalPages().size(), 3U);
    EXPECT_EQ(previewFile(u"files/search/book.js"_s).count("\"image\""), 3);
    EXPECT_FALSE(child<QLabel>(u"importNotice"_s)->isVisible());

    auto* recent = child<QMenu>(u"recentMenu"_s);
    Q_EMIT recent->aboutToShow();
    EXPECT_EQ(recent->actions().first()->text(), home.path(u"new.pdf"_s));
}

TEST_F(AppDelegateTest, RemovesThePicturesOfTheFormerBook)
{
    start();
    import(addPDF(u"first.pdf"_s, 2));
    delegate.OnExportFlipBook();
    clickInSheet(u"btnCancel"_s);
    const QString picture = delegate.flashPageSource()->normalPages().front()->pageFilePath();
    ASSERT_TRUE(FileSteps::exists(picture));
    import(addPDF(u"second.pdf"_s, 1));
    waitFor([&] { return !FileSteps::exists(picture); });
}

TEST_F(AppDelegateTest, KeepsItsBookWhenTheImportIsCancelled)
{
    start();
    const auto pages = delegate.flashPageSource();
    const QString width = value(u"pageWidth"_s);
    delegate.importFiles({ addPDF(u"new.pdf"_s, 3) });
    clickInSheet(u"btnCancel"_s);
    QCoreApplication::processEvents();
    EXPECT_EQ(delegate.flashPageSource(), pages);
    EXPECT_EQ(value(u"pageWidth"_s), width);
    EXPECT_TRUE(shown.isEmpty());
}

TEST_F(AppDelegateTest, NotesPagesThatCouldNotBeDrawnUntilTheNextImport)
{
    start();
    delegate.importFiles({ addPDF(u"short.pdf"_s, 3) });
    clickInSheet(u"optPageRange"_s);
    sheet()->findChild<QLineEdit*>(u"txtPageRange"_s)->setText(u"2-4"_s);
    clickInSheet(u"btnOK"_s); // before the number of pages is known
    waitForPreview();
    const auto* notice = child<QLabel>(u"importNotice"_s);
    EXPECT_TRUE(notice->isVisible());
    EXPECT_EQ(notice->text(), u"1 of 3 pages could not be drawn: 4."_s);
    delegate.importFiles({});
    clickInSheet(u"optAllPages"_s);
    clickInSheet(u"btnOK"_s);
    waitForPreview();
    EXPECT_FALSE(notice->isVisible());
}

TEST_F(AppDelegateTest, ExportsSettingsUnderANameWithAnExtension)
{
    start();
    delegate.exportTmplSettingsTo(home.path(u"plain"_s));
    delegate.exportTmplSettingsTo(home.path(u"mine.settings"_s));
    EXPECT_TRUE(FileSteps::exists(home.path(u"plain.txt"_s)));
    EXPECT_FALSE(FileSteps::exists(home.path(u"plain"_s)));
    EXPECT_TRUE(FileSteps::exists(home.path(u"mine.settings"_s)));

    const QString colour = value(u"backgroundColor"_s);
    change(u"backgroundColor"_s, u"0x123456"_s);
    delegate.importTmplSettingsFrom(home.path(u"plain.txt"_s));
    waitForPreview();
    EXPECT_EQ(value(u"backgroundColor"_s), colour);
}

TEST_F(AppDelegateTest, MakesThePreviewAnewWhenAnImportOfSettingsIsCancelled)
{
    start();
    delegate.OnImportTmplSettings();
    qobject_cast<QFileDialog*>(sheet())->reject();
    waitForPreview();
}

TEST_F(AppDelegateTest, ChangesTheTemplateToTheChosenStyle)
{
    start();
    delegate.onSelectTemplate();
    auto* gallery = sheet()->findChild<QListView*>(u"iImgBrowserView"_s);
    gallery->setCurrentIndex(gallery->model()->index(0, 0));
    const QString style = gallery->currentIndex().data().toString();
    clickInSheet(u"btnOK"_s);
    waitForPreview();
    EXPECT_EQ(delegate.flashTmpl()->styleName(), style);
    const auto* tree = child<QTreeView>(u"outlineView"_s);
    EXPECT_TRUE(tree->isExpanded(tree->model()->index(0, 0)));
}

TEST_F(AppDelegateTest, KeepsItsTemplateWhenTheChosenOneIsBroken)
{
    const TemporaryResources resources;
    resources.addTemplate(
        u"float"_s, TemporaryResources::property("pt_text", "bookTitle", "Leaves"));
    resources.addFile(u"AppFiles/Templates/broken/flashTemplate.xml"_s, "<template/>");
    resources.addFile(u"AppFiles/Styles/broken/Plain/tmplSetting.txt"_s, "");
    start();
    delegate.onSelectTemplate();
    auto* list = sheet()->findChild<QListView*>(u"iTableViewTmpls"_s);
    list->setCurrentIndex(list->model()->index(0, 0));
    auto* gallery = sheet()->findChild<QListView*>(u"iImgBrowserView"_s);
    gallery->setCurrentIndex(gallery->model()->index(0, 0));
    clickInSheet(u"btnOK"_s);
    EXPECT_EQ(sheet()->objectName(), u"templateProblem"_s);
    EXPECT_EQ(delegate.flashTmpl()->tmplName(), u"float"_s);
    EXPECT_EQ(value(u"bookTitle"_s), u"Leaves"_s);
}

TEST_F(AppDelegateTest, StartsWithoutSamplePictures)
{
    const TemporaryResources resources;
    resources.addTemplate(u"float"_s, {});
    resources.addFile(u"AppFiles/Templates/float/index.html"_s, "<h1>${index.title}</h1>");
    start();
    EXPECT_TRUE(delegate.flashPageSource()->normalPages().empty());
    EXPECT_EQ(previewFile(u"index.html"_s), "<h1>Preview</h1>");
}

} // namespace leafcast
