// SPDX-License-Identifier: MIT
#include "pages/ui/ImportWindowDelegate.h"

#include "pages/ImportNotifications.h"
#include "support/PDFBuilder.h"
#include "support/SheetDriver.h"
#include "support/TestFiles.h"
#include "support/TestPicture.h"
#include "widgets/SheetField.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QProcess>
#include <QProgressBar>

using namespace Qt::StringLiterals;

namespace leafcast {

class ImportWindowDelegateTest : public testing::Test, protected SheetDriver<ImportWindowDelegate> {
protected:
    QString addPDF(const QString& name, int pages) const
    {
        PDFBuilder builder;
        for (int i = 0; i < pages; ++i)
            builder.addPage({ .cropBox = PDFBuilder::Box{ 0, 0, 595.9, 700.4 } });
        return writeTestFile(folder.filePath(name), builder.build());
    }
    void importFile(const QString& path)
    {
        type("txtImportFile", path);
        click("btnOK");
    }
    void waitForTheEnd()
    {
        waitFor([this] { return !sheet->isImporting(); });
    }
    bool isRangeWrong() const { return control<SheetField>("txtPageRange")->isWrong(); }
};

TEST_F(ImportWindowDelegateTest, SaysThatTheFileIsMissingAndStoresNothing)
{
    settings.setLastImportedFile(u"/former.pdf"_s);
    openSheet();
    importFile(folder.filePath(u"missing.pdf"_s));
    EXPECT_EQ(info(), u"Import PDF file does not exist."_s);
    EXPECT_EQ(settings.lastImportedFile(), u"/former.pdf"_s);
    EXPECT_TRUE(control<QAbstractButton>("btnOK")->isEnabled());
    EXPECT_FALSE(sheet->isImporting());
}

TEST_F(ImportWindowDelegateTest, ImportsWhatIsChosenAndRemembersTheChoices)
{
    const QString path = addPDF(u"book.pdf"_s, 3);
    openSheet();
    click("optPageRange");
    type("txtPageRange", u"1,3"_s);
    control<QComboBox>("importQuality")->setCurrentIndex(3);
    click("btnImportLinks");
    importFile(path);
    EXPECT_FALSE(control<QAbstractButton>("btnOK")->isEnabled());
    EXPECT_EQ(waitForResult(), 1);
    EXPECT_EQ(sheet->flashPageSource()->normalPages().size(), 2u);
    EXPECT_NE(sheet->flashPagesAnnotations(), nullptr);
    EXPECT_EQ(sheet->flashOutline(), nullptr);
    EXPECT_EQ(QSize(sheet->pageWidth(), sheet->pageHeight()), QSize(595, 700));
    EXPECT_EQ(QSize(settings.PageWidth(), settings.PageHeight()), QSize(595, 700));

    UserDefaults stored(folder.filePath(u"defaults.json"_s));
    AppSettings later(stored);
    EXPECT_EQ(later.lastImportedFile(), path);
    EXPECT_EQ(later.importPageRange(), u"1,3"_s);
    EXPECT_EQ(later.importPageRangeType(), 1);
    EXPECT_EQ(later.importQualityLevel(), 3);
    EXPECT_EQ(later.importLinks(), 1);
    EXPECT_EQ(later.importBookmark(), 0);
}

TEST_F(ImportWindowDelegateTest, OpensWithTheRememberedChoices)
{
    settings.setLastImportedFile(u"/former.pdf"_s);
    settings.setImportPageRange(u"2-4"_s);
    settings.setImportPageRangeType(7);
    settings.setImportQualityLevel(4);
    settings.setImportBookmark(1);
    openSheet();
    EXPECT_EQ(typed("txtImportFile"), u"/former.pdf"_s);
    EXPECT_EQ(typed("txtPageRange"), u"2-4"_s);
    EXPECT_FALSE(control<QWidget>("txtPageRange")->isEnabled());
    EXPECT_TRUE(control<QAbstractButton>("optAllPages")->isChecked());
    EXPECT_EQ(control<QComboBox>("importQuality")->currentIndex(), 4);
    EXPECT_TRUE(control<QCheckBox>("btnImportBookMark")->isChecked());
    EXPECT_FALSE(control<QCheckBox>("btnImportLinks")->isChecked());
}

TEST_F(ImportWindowDelegateTest, ShowsProgressStopsOnCancelAndClosesOnTheSecond)
{
    openSheet();
    Gate gate(ImportProgressInfoMSG, 2);
    importFile(addPDF(u"book.pdf"_s, 6));
    waitFor([this] { return info() == u"Importing:2/6"_s; });
    EXPECT_EQ(control<QProgressBar>("prgBar")->value(), 2);
    click("btnCancel");
    EXPECT_TRUE(control<QAbstractButton>("btnOK")->isEnabled());
    gate.open();
    waitForTheEnd();
    EXPECT_TRUE(sheet->isVisible());
    EXPECT_EQ(info(), u""_s);
    EXPECT_EQ(sheet->flashPageSource(), nullptr);
    click("btnCancel");
    EXPECT_EQ(waitForResult(), 0);
}

TEST_F(ImportWindowDelegateTest, ChecksThePageRangeOnlyWhenItIsChosen)
{
    openSheet();
    type("txtImportFile", addPDF(u"book.pdf"_s, 3));
    type("txtPageRange", u"3-1"_s);
    EXPECT_FALSE(isRangeWrong());
    click("optPageRange");
    EXPECT_TRUE(isRangeWrong());
    click("btnOK");
    EXPECT_FALSE(sheet->isImporting());
    EXPECT_EQ(typed("txtPageRange"), u"3-1"_s);
    type("txtPageRange", u"2-4"_s); // wrong as soon as the number of pages is known
    waitFor([this] { return isRangeWrong(); });
    EXPECT_EQ(control<QLabel>("lblPageRange")->text(), u"There is no page 4; the last one is 3."_s);
    click("optAllPages");
    EXPECT_FALSE(isRangeWrong());
}

TEST_F(ImportWindowDelegateTest, AsksForThePasswordOfALockedPDF)
{
    const QString locked = folder.filePath(u"locked.pdf"_s);
    ASSERT_EQ(QProcess::execute(u"qpdf"_s,
                  { u"--encrypt"_s, u"secret"_s, u"owner"_s, u"256"_s, u"--"_s,
                      addPDF(u"open.pdf"_s, 2), locked }),
        0);
    openSheet();
    EXPECT_FALSE(control<QWidget>("txtPassword")->isVisible());
    importFile(locked);
    waitForTheEnd();
    EXPECT_TRUE(control<QWidget>("txtPassword")->isVisible());
    type("txtPassword", u"wrong"_s);
    click("btnOK");
    waitForTheEnd();
    EXPECT_EQ(info(), u"This password does not open the PDF."_s);
    type("txtPassword", u"secret"_s);
    click("btnOK");
    EXPECT_EQ(waitForResult(), 1);
    EXPECT_EQ(sheet->flashPageSource()->normalPages().size(), 2u);
}

TEST_F(ImportWindowDelegateTest, SaysWhyADamagedPDFCanNotBeImportedAndKeepsWhatWasTyped)
{
    openSheet();
    const QString path = writeTestFile(folder.filePath(u"torn.pdf"_s), "no PDF at all");
    importFile(path);
    waitForTheEnd();
    EXPECT_TRUE(info().startsWith(u"The PDF %1 can't be opened: "_s.arg(path)))
        << info().toStdString();
    EXPECT_EQ(typed("txtImportFile"), path);
    EXPECT_EQ(sheet->flashPageSource(), nullptr);
    EXPECT_TRUE(sheet->isVisible());
}

TEST_F(ImportWindowDelegateTest, MakesABookOfImagesInNaturalOrder)
{
    for (const int number : { 10, 9 })
        writeTestFile(folder.filePath(u"in/%1.png"_s.arg(number)),
            testPicture({ 10 * number, 50 }, 72, "PNG"));
    openSheet();
    sheet->takeFiles({ folder.filePath(u"in"_s) });
    click("btnOK");
    EXPECT_EQ(waitForResult(), 1);
    EXPECT_EQ(sheet->flashPageSource()->normalPages().size(), 2u);
    EXPECT_EQ(sheet->pageWidth(), 90);
    EXPECT_EQ(settings.lastImportedFile(), u""_s);
}

TEST_F(ImportWindowDelegateTest, RefusesAnImageThatIsNone)
{
    openSheet();
    importFile(writeTestFile(folder.filePath(u"1.png"_s), "no picture"));
    waitForTheEnd();
    EXPECT_TRUE(info().contains(u"1.png can't be used: "_s)) << info().toStdString();
    EXPECT_TRUE(sheet->isVisible());
}

TEST_F(ImportWindowDelegateTest, NotesThePagesThatCouldNotBeDrawn)
{
    const QString path = addPDF(u"book.pdf"_s, 3);
    openSheet();
    click("optPageRange");
    type("txtPageRange", u"2-5"_s);
    type("txtImportFile", path);
    sheet->onImportAction(); // which takes any range
    EXPECT_EQ(waitForResult(), 1);
    EXPECT_EQ(sheet->notice(), u"2 of 4 pages could not be drawn: 4, 5"_s);
}

TEST_F(ImportWindowDelegateTest, TakesWhatIsDroppedOnIt)
{
    const QString path = addPDF(u"dropped.pdf"_s, 1);
    openSheet();
    QMimeData data;
    const auto drop = [&](const QList<QUrl>& urls) {
        data.setUrls(urls);
        QDragEnterEvent enter({}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QCoreApplication::sendEvent(sheet.get(), &enter);
        QDropEvent event({}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        if (enter.isAccepted())
            QCoreApplication::sendEvent(sheet.get(), &event);
        return enter.isAccepted();
    };
    EXPECT_TRUE(drop({ QUrl::fromLocalFile(path) }));
    EXPECT_EQ(typed("txtImportFile"), path);
    EXPECT_FALSE(
        drop({ QUrl::fromLocalFile(u"/notes.txt"_s), QUrl(u"https://a.example/b.pdf"_s) }));
    EXPECT_EQ(typed("txtImportFile"), path);
}

TEST_F(ImportWindowDelegateTest, OpensTheFileAndTakesWhatThePanelReportsWhateverItsCode)
{
    QStringList opened;
    openSheet();
    sheet->setOpener([&](const QString& path) { opened.append(path); });
    sheet->openPanelDidEnd(0, u"/reported.pdf"_s);
    click("btnOpenFile");
    EXPECT_EQ(opened, QStringList(u"/reported.pdf"_s));
}

} // namespace leafcast
