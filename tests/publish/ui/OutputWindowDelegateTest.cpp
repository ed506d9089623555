// SPDX-License-Identifier: MIT
#include "publish/ui/OutputWindowDelegate.h"

#include "publish/BookFixture.h"
#include "publish/PublishNotifications.h"
#include "support/SheetDriver.h"

#include <QMessageBox>

namespace leafcast {

/// The book's parts are those of the fixture; "out" in the temporary folder is where they go.
class OutputWindowDelegateTest : public BookFixture, protected SheetDriver<OutputWindowDelegate> {
protected:
    OutputWindowDelegateTest()
    {
        addPage(1, picture({ 20, 30 }));
        addPage(2, picture({ 20, 30 }));
        settings.setLastOutputFileFolder(out());
        settings.setLastOutputFileName(u"book"_s);
        settings.setLastOutputFileTitle(u"A title"_s);
    }

    void openSheet()
    {
        SheetDriver::openSheet();
        sheet->setFlashTmpl(flashTemplate);
        sheet->setFlashPageSource(pageSource);
        sheet->setOpener([this](const QString& path) { opened.append(path); });
    }
    QString out(const QString& path = {}) const
    {
        return resources.path(path.isEmpty() ? u"out"_s : u"out/"_s + path);
    }
    void publishAndWait()
    {
        click("btnPublish");
        waitFor([this] { return !sheet->isPublishing(); });
    }
    void answer(const char* question, const QString& button)
    {
        auto* box = control<QMessageBox>(question);
        ASSERT_TRUE(box);
        for (QAbstractButton* choice : box->buttons())
            if (choice->text().remove(u'&') == button)
                return choice->click();
        FAIL() << "no button " << button.toStdString();
    }

    QStringList opened;
};

TEST_F(OutputWindowDelegateTest, PublishesAFolderAndOpensItsPage)
{
    resources.addFile(templateFolder + u"index.html"_s, "<h1>${index.title}</h1>");
    openSheet();
    publishAndWait();
    const auto* alert = control<QMessageBox>("openQuestion");
    EXPECT_EQ(alert->text(), u"Open the result files?"_s);
    EXPECT_EQ(alert->informativeText(), u"Publish finished! Open the it?"_s);
    answer("openQuestion", u"Open it"_s);
    EXPECT_EQ(waitForResult(), 1);
    EXPECT_EQ(opened, QStringList(out(u"book.html"_s)));
    EXPECT_EQ(FileSteps::read(out(u"book.html"_s)).value_or(""), "<h1>A title</h1>");
    EXPECT_TRUE(QFile::exists(out(u"files/page/2.jpg"_s)));
}

TEST_F(OutputWindowDelegateTest, PublishesAPackageAndLeavesItUnopened)
{
    settings.setOutputType(1);
    openSheet();
    EXPECT_TRUE(control<QAbstractButton>("optPackage")->isChecked());
    publishAndWait();
    answer("openQuestion", u"No"_s);
    EXPECT_EQ(waitForResult(), 1);
    EXPECT_TRUE(opened.isEmpty());
    EXPECT_TRUE(QFile::exists(out(u"book.app/Contents/Resources/index.html"_s)));
}

TEST_F(OutputWindowDelegateTest, RemembersTheChoices)
{
    openSheet();
    type("txtTitle", u"Another"_s);
    type("txtOutputName", u""_s);
    click("optPackage");
    click("btnPublish");
    UserDefaults stored(folder.filePath(u"defaults.json"_s));
    const AppSettings later(stored);
    EXPECT_EQ(later.lastOutputFileTitle(), u"Another"_s);
    EXPECT_EQ(later.lastOutputFileFolder(), out());
    EXPECT_EQ(later.outputType(), 1);
}

TEST_F(OutputWindowDelegateTest, AsksBeforeItPublishesAmongOtherThings)
{
    resources.addFile(u"out/thesis.odt"_s, "years of work");
    openSheet();
    click("btnPublish");
    EXPECT_TRUE(
        control<QMessageBox>("replaceQuestion")->informativeText().contains(u"thesis.odt"_s));
    answer("replaceQuestion", u"Cancel"_s);
    EXPECT_FALSE(sheet->isPublishing());
    EXPECT_FALSE(QFile::exists(out(u"book.html"_s)));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    click("btnPublish");
    answer("replaceQuestion", u"Publish"_s);
    waitFor([this] { return !sheet->isPublishing(); });
    EXPECT_TRUE(QFile::exists(out(u"book.html"_s)));
}

TEST_F(OutputWindowDelegateTest, SaysWhatIsWrongBeforeAnythingIsTouched)
{
    const QString file = resources.addFile(u"file"_s, "");
    struct Case {
        QString folder;
        QString name;
        QString part; // of what is said
    };
    openSheet();
    for (const Case& wrong :
        { Case{ out(), u""_s, u"it is empty"_s }, Case{ out(), u"a/b"_s, u"without a folder"_s },
            Case{ u""_s, u"book"_s, u"has no name"_s },
            Case{ file + u"/out"_s, u"book"_s, u"is no folder"_s },
            Case{ out(u"deeper"_s), u"book"_s, u"there is no folder"_s },
            Case{ resources.path(u""_s), QString(300, u'n'), u"there is room for"_s } }) {
        type("txtOutputFolder", wrong.folder);
        type("txtOutputName", wrong.name);
        click("btnPublish");
        EXPECT_FALSE(sheet->isPublishing());
        EXPECT_TRUE(info().contains(wrong.part)) << info().toStdString();
    }
    EXPECT_FALSE(QFile::exists(out()));
}

TEST_F(OutputWindowDelegateTest, StopsOnCancelAndLeavesThePagesUsable)
{
    useProperties(readerData);
    openSheet();
    Gate gate(ReaderDataProgressMSG, 1);
    click("btnPublish");
    waitFor([&] { return gate.isReached(); });
    click("btnCancel");
    EXPECT_TRUE(sheet->isVisible());
    gate.open();
    waitFor([this] { return !sheet->isPublishing(); });
    EXPECT_TRUE(info().contains(u"was stopped"_s)) << info().toStdString();
    EXPECT_FALSE(pageSource->stop());
    click("btnCancel");
    EXPECT_EQ(waitForResult(), 0);
}

TEST_F(OutputWindowDelegateTest, SaysWhatCouldNotBeWritten)
{
    resources.addFile(u"out/files"_s, "where a folder must be");
    openSheet();
    click("btnPublish");
    answer("replaceQuestion", u"Publish"_s);
    waitFor([this] { return !sheet->isPublishing(); });
    EXPECT_TRUE(info().contains(u"files/page/1.jpg"_s)) << info().toStdString();
    EXPECT_TRUE(sheet->isVisible());
}

TEST_F(OutputWindowDelegateTest, ShowsTheFolderAndTakesWhatThePanelReportsWhateverItsCode)
{
    openSheet();
    click("btnOpenFolder");
    EXPECT_EQ(opened, QStringList(out()));
    sheet->openPanelDidEnd(0, u""_s);
    EXPECT_EQ(control<QLineEdit>("txtOutputFolder")->text(), u""_s);
}

TEST_F(OutputWindowDelegateTest, PutsDescriptionAndKeywordsIntoThePageWhenTheyAreTyped)
{
    resources.addFile(
        templateFolder + u"index.html"_s, "<p>${meta.description}</p><p>${meta.keywords}</p>");
    openSheet();
    click("btnMore");
    type("txtDescription", u"On leaves"_s);
    publishAndWait();
    EXPECT_EQ(FileSteps::read(out(u"book.html"_s)).value_or(""),
        "<p>On leaves</p><p>Leafcast,page flip,flipping-book</p>");
}

} // namespace leafcast
