// SPDX-License-Identifier: MIT
#include "pdf/PDFDocument.h"

#include "support/LogCapture.h"
#include "support/PDFBuilder.h"
#include "support/TestFiles.h"

#include <gmock/gmock.h>
#include <QProcess>
#include <QTemporaryDir>
#include <thread>

using namespace Qt::StringLiterals;
using namespace leafcast;
using testing::ElementsAre;

class PDFDocumentTest : public testing::Test {
protected:
    QString write(const QByteArray& bytes) const
    {
        return writeTestFile(iFolder.filePath(u"a book.pdf"_s), bytes);
    }

    std::shared_ptr<PDFDocument> opened(const QByteArray& bytes) const
    {
        const PDFDocument::OpenResult result = PDFDocument::open({ .path = write(bytes) });
        EXPECT_TRUE(result.document) << result.reason.toStdString();
        return result.document;
    }

    QString encrypted(const QByteArray& password) const
    {
        QString path = iFolder.filePath(u"locked.pdf"_s);
        QProcess qpdf;
        qpdf.start(u"qpdf"_s,
            { u"--encrypt"_s, QString::fromUtf8(password), u"owner"_s, u"256"_s, u"--"_s,
                write(onePage()), path });
        EXPECT_TRUE(qpdf.waitForFinished());
        return path;
    }

    static QByteArray onePage()
    {
        PDFBuilder builder;
        builder.addPage();
        return builder.build();
    }

    static void expectError(
        const PDFDocument::Source& source, PDFOpenError error, const QString& reason)
    {
        const PDFDocument::OpenResult result = PDFDocument::open(source);
        EXPECT_FALSE(result.document);
        EXPECT_EQ(result.error, error) << source.path.toStdString();
        EXPECT_EQ(result.reason, reason) << source.path.toStdString();
    }

    QTemporaryDir iFolder;
    LogCapture iLog;
};

TEST_F(PDFDocumentTest, AFileThatIsNoDocumentSaysWhy)
{
    const QString notPDF = u"it is not a PDF or damaged beyond repair"_s;
    expectError({ .path = iFolder.filePath(u"nothing.pdf"_s) }, PDFOpenError::Missing,
        u"it does not exist or may not be read"_s);
    expectError({ .path = write("") }, PDFOpenError::Empty, u"it is empty"_s);
    expectError(
        { .path = write("Dear reader, this is a letter.") }, PDFOpenError::Unreadable, notPDF);
    expectError({ .path = write(onePage().left(40)) }, PDFOpenError::Unreadable, notPDF);
    expectError({ .path = iFolder.path() }, PDFOpenError::Unreadable, notPDF);
}

TEST_F(PDFDocumentTest, ALockedFileOpensWithItsPasswordOnly)
{
    const QString path = encrypted("s\u00e9same");
    expectError({ .path = path }, PDFOpenError::Locked, u"it is locked and needs a password"_s);
    expectError({ .path = path, .password = u"x"_s }, PDFOpenError::WrongPassword,
        u"the password is wrong"_s);

    const auto document
        = PDFDocument::open({ .path = path, .password = u"s\u00e9same"_s }).document;
    ASSERT_TRUE(document);
    EXPECT_TRUE(document->isEncrypted());
    EXPECT_EQ(document->pageCount(), 1);
}

TEST_F(PDFDocumentTest, TellsWhatTheFileSaysOfItself)
{
    PDFBuilder builder;
    builder.addPage();
    builder.addPage();
    builder.setTitle(u"Bl\u00e4tter \u2113"_s);
    const QByteArray bytes = builder.build();

    const auto document = opened(bytes);
    EXPECT_EQ(document->pageCount(), 2);
    EXPECT_EQ(document->title(), u"Bl\u00e4tter \u2113"_s);
    EXPECT_FALSE(document->isRepaired());
    EXPECT_FALSE(document->isEncrypted());
    EXPECT_FALSE(document->outlineRoot());
    EXPECT_TRUE(document->annotationsOfPage(0).empty());
    EXPECT_TRUE(opened(bytes.left(bytes.lastIndexOf("xref")))->isRepaired());
    EXPECT_TRUE(iLog.lines().isEmpty());
}

TEST_F(PDFDocumentTest, PagesBeyondTheFirstChunkAreTheirOwn)
{
    PDFBuilder builder;
    for (int i = 0; i < 300; ++i)
        builder.addPage({ .mediaBox = { 0, 0, 100.0 + i, 50 }, .rotation = 90 });
    builder.setPageLabels("0 << /S /r >> 4 << /S /D /P (A-) >>");

    const auto document = opened(builder.build());
    for (const int index : { 0, 127, 128, 299, 5 })
        EXPECT_EQ(document->pageAtIndex(index)->displayedHeight(), 100 + index);
    EXPECT_EQ(document->pageAtIndex(3)->label(), u"iv"_s);
    EXPECT_EQ(document->pageAtIndex(299)->label(), u"A-296"_s);
    EXPECT_FALSE(document->pageAtIndex(300));
    EXPECT_TRUE(document->annotationsOfPage(-1).empty());
    EXPECT_TRUE(document->textOfPage(300).empty());
    EXPECT_TRUE(iLog.lines().isEmpty());
}

TEST_F(PDFDocumentTest, LinksAndOutlineNameTheirTargets)
{
    PDFBuilder builder;
    builder.addPage();
    builder.addPage();
    builder.addURLLink(0, { 10, 20, 30, 50 }, "https://leaf.example/a?b=c");
    builder.addPageLink(0, { 0, 0, 9, 9 }, 1);
    builder.setOutline({ { .label = u"One"_s,
        .target = builder.explicitDestination(1),
        .children = { { .label = u"Inside"_s } } } });

    const auto document = opened(builder.build());
    const std::vector<PDFAnnotation> links = document->annotationsOfPage(0);
    ASSERT_EQ(links.size(), 2U);
    EXPECT_EQ(links[0].URL, u"https://leaf.example/a?b=c"_s);
    EXPECT_EQ(links[0].bounds.height, 30);
    EXPECT_EQ(links[1].destination->pageIndex, 1);
    const PDFOutline outline = document->outlineRoot()->childAtIndex(0);
    EXPECT_EQ(outline.label, u"One"_s);
    EXPECT_EQ(outline.destination.pageIndex, 1);
    EXPECT_EQ(outline.childAtIndex(0).destination.pageIndex, -1);
}

TEST_F(PDFDocumentTest, MayBeHandedToAnotherThread)
{
    std::shared_ptr<PDFDocument> document;
    std::thread([&] { document = opened(onePage()); }).join();

    EXPECT_TRUE(document->pageAtIndex(0));
    EXPECT_TRUE(document->textOfPage(0).empty());
    EXPECT_TRUE(iLog.lines().isEmpty());
}
