// SPDX-License-Identifier: MIT
#include "base/FileSteps.h"
#include "base/ResourceFolder.h"
#include "cli/CommandLine.h"

#include <QJsonArray>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace leafcast {

/// Each failure: one sentence that names the file and the reason, the exit status, and nothing
/// touched.
class PublishFailure : public CommandLineTest {
protected:
    void expectFailure(
        const QStringList& arguments, int status, const QList<QByteArray>& named) const
    {
        const Outcome outcome = run(QStringList{ u"publish"_s } + arguments);
        EXPECT_EQ(outcome.status, status) << outcome.errors.toStdString();
        EXPECT_EQ(outcome.errors.count('\n'), 1) << outcome.errors.toStdString();
        for (const QByteArray& word : named)
            EXPECT_TRUE(outcome.errors.contains(word))
                << word.toStdString() << " in " << outcome.errors.toStdString();
        EXPECT_TRUE(outcome.output.isEmpty()) << outcome.output.toStdString();
        EXPECT_FALSE(QFileInfo::exists(at(u"book"_s)));
    }
};

TEST_F(PublishFailure, InputsThatAreNoReadablePDF)
{
    writeTestFile(at(u"empty.pdf"_s), "");
    writeTestFile(at(u"text.pdf"_s), "This is no PDF at all, only words.");
    writePDF(u"none.pdf"_s, PDFBuilder());
    QDir(iFolder.path()).mkpath(u"nothing"_s);
    writeTestFile(at(u"broken.jpg"_s), "no picture");

    expectFailure({ u"missing.pdf"_s, u"book"_s }, 3, { "missing.pdf", "exist" });
    expectFailure({ u"empty.pdf"_s, u"book"_s }, 3, { "empty.pdf", "empty" });
    expectFailure({ u"text.pdf"_s, u"book"_s }, 3, { "text.pdf", "not a PDF" });
    expectFailure({ u"none.pdf"_s, u"book"_s }, 3, { "none.pdf", "no pages" });
    expectFailure({ u"nothing"_s, u"book"_s }, 3, { "nothing", "no images" });
    expectFailure({ u"missing.jpg"_s, u"book"_s }, 3, { "missing.jpg", "exist" });
    expectFailure({ u"broken.jpg"_s, u"book"_s }, 3, { "broken.jpg" });
}

TEST_F(PublishFailure, LockedDocuments)
{
    const QString plain = writeNumberedPDF(u"plain.pdf"_s, 1);
    ASSERT_EQ(QProcess::execute(u"qpdf"_s,
                  { u"--encrypt"_s, u"secret"_s, u"owner"_s, u"256"_s, u"--"_s, plain,
                      at(u"locked.pdf"_s) }),
        0);
    writeTestFile(at(u"password.txt"_s), "secret\n");

    expectFailure({ u"locked.pdf"_s, u"book"_s }, 5, { "locked.pdf", "password" });
    expectFailure(
        { u"locked.pdf"_s, u"book"_s, u"--password"_s, u"wrong"_s }, 5, { "locked.pdf", "wrong" });
    expectFailure({ u"locked.pdf"_s, u"book"_s, u"--password-file"_s, u"missing.txt"_s }, 3,
        { "missing.txt" });
    EXPECT_EQ(
        run({ u"publish"_s, u"locked.pdf"_s, u"a"_s, u"--password"_s, u"secret"_s }).status, 0);
    EXPECT_EQ(
        run({ u"publish"_s, u"locked.pdf"_s, u"b"_s, u"--password-file"_s, u"password.txt"_s })
            .status,
        0);
    EXPECT_EQ(
        run({ u"publish"_s, u"locked.pdf"_s, u"c"_s }, { u"LEAFCAST_PASSWORD=secret"_s }).status,
        0);
}

TEST_F(PublishFailure, PageRangesThatNameNoPage)
{
    writeNumberedPDF(u"in.pdf"_s, 4);
    expectFailure(
        { u"in.pdf"_s, u"book"_s, u"--pages"_s, u"5-9"_s }, 2, { "in.pdf", "5-9", "4 pages" });
    expectFailure({ u"in.pdf"_s, u"book"_s, u"--pages"_s, u"abc"_s }, 2, { "in.pdf", "abc" });
    expectFailure(
        { u"in.pdf"_s, u"book"_s, u"--pages"_s, u"1-2000000000"_s }, 2, { "1-2000000000" });
}

TEST_F(PublishFailure, TemplatesStylesAndSettings)
{
    writeNumberedPDF(u"in.pdf"_s, 1);
    writeTestFile(at(u"no-equals.txt"_s), "just words\n");
    const QStringList base{ u"in.pdf"_s, u"book"_s };

    expectFailure(base + QStringList{ u"--template"_s, u"glider"_s }, 2, { "glider", "float" });
    expectFailure(base + QStringList{ u"--style"_s, u"Glitter"_s }, 2, { "Glitter", "Wall-line" });
    expectFailure(
        base + QStringList{ u"--settings"_s, u"missing.txt"_s }, 3, { "missing.txt", "exist" });
    expectFailure(base + QStringList{ u"--settings"_s, u"no-equals.txt"_s }, 3,
        { "no-equals.txt", "KEY=VALUE" });
    expectFailure(base + QStringList{ u"--set"_s, u"noSuchKey=1"_s }, 2, { "noSuchKey" });
    expectFailure(
        base + QStringList{ u"--set"_s, u"turnDuration=soon"_s }, 2, { "turnDuration", "number" });
    expectFailure(
        base + QStringList{ u"--set"_s, u"viewMode=Triple"_s }, 2, { "viewMode", "Single" });
    expectFailure(
        base + QStringList{ u"--set"_s, u"LogoFile=missing.png"_s }, 3, { "missing.png" });
    expectFailure(base + QStringList{ u"--name"_s, u"a/b"_s }, 2, { "a/b" });
}

TEST_F(PublishFailure, DamagedTemplatesAndStyles)
{
    writeNumberedPDF(u"in.pdf"_s, 1);
    const QString resources = at(u"resources"_s);
    ASSERT_TRUE(FileSteps::copyFolder(ResourceFolder::path(), resources));
    const QString library = resources + u"/AppFiles/"_s;
    QFile::remove(library + u"Styles/float/Night/tmplSetting.txt"_s);
    writeTestFile(library + u"Templates/torn/flashTemplate.xml"_s, "<t>\n<info></info></t>");
    writeTestFile(library + u"Templates/words/flashTemplate.xml"_s, "no template");
    const QStringList variables{ u"LEAFCAST_RESOURCES="_s + resources };

    const auto expectNamed = [&](const QStringList& options, const QByteArray& file) {
        const Outcome outcome
            = run(QStringList{ u"publish"_s, u"in.pdf"_s, u"book"_s } + options, variables);
        EXPECT_EQ(outcome.status, 3) << outcome.errors.toStdString();
        EXPECT_EQ(outcome.errors.count('\n'), 1);
        EXPECT_TRUE(outcome.errors.contains(file)) << outcome.errors.toStdString();
    };
    expectNamed({ u"--style"_s, u"Night"_s }, "Night/tmplSetting.txt");
    expectNamed({ u"--template"_s, u"torn"_s }, "torn/flashTemplate.xml, line 2");
    expectNamed({ u"--template"_s, u"words"_s }, "words/flashTemplate.xml");
    EXPECT_FALSE(QFileInfo::exists(at(u"book"_s)));
}

TEST_F(PublishFailure, ASettingsFileInUTF16IsRead)
{
    writeNumberedPDF(u"in.pdf"_s, 1);
    const QString text = u"\uFEFFbookTitle=Stra\u00DFe\n"_s;
    writeTestFile(at(u"utf16.txt"_s),
        QByteArray(reinterpret_cast<const char*>(text.utf16()), text.size() * 2));
    EXPECT_EQ(
        run({ u"publish"_s, u"in.pdf"_s, u"book"_s, u"--settings"_s, u"utf16.txt"_s }).status, 0);
    EXPECT_TRUE(readTestFile(at(u"book/javascript/main.js"_s))
                    .contains("bookTitle:\"Stra\xC3\x9F"
                              "e\""));
}

TEST_F(PublishFailure, OutputsThatCannotBeWritten)
{
    writeNumberedPDF(u"in.pdf"_s, 1);
    writeTestFile(at(u"file"_s), "kept");
    expectFailure({ u"in.pdf"_s, u"file"_s }, 4, { "file" });
    expectFailure({ u"in.pdf"_s, u"file/below"_s }, 4, { "file/below" });
    expectFailure({ u"in.pdf"_s, u""_s }, 2, { "no name" });
    EXPECT_EQ(readTestFile(at(u"file"_s)), "kept");
}

TEST_F(PublishFailure, InputsThatTheOutputWouldReplace)
{
    writePicture(u"book/files/page/1.jpg"_s, 30, 40);
    writePicture(u"out/Album.app/Contents/Resources/files/page/1.jpg"_s, 30, 40);
    const auto refused = [this](const QStringList& arguments, const QString& kept) {
        const Outcome outcome = run(QStringList{ u"publish"_s, u"--force"_s } + arguments);
        EXPECT_EQ(outcome.status, 4) << outcome.errors.toStdString();
        EXPECT_TRUE(outcome.errors.contains("would replace")) << outcome.errors.toStdString();
        EXPECT_TRUE(QFileInfo::exists(at(kept)));
    };
    refused({ u"book/files/page/1.jpg"_s, u"book"_s }, u"book/files/page/1.jpg"_s);
    refused({ u"out/Album.app/Contents/Resources/files/page"_s, u"out"_s, u"--app"_s, u"--name"_s,
                u"Album"_s },
        u"out/Album.app/Contents/Resources/files/page/1.jpg"_s);
}

TEST_F(PublishFailure, ValuesThatBreakTheScriptAreToldBeforehand)
{
    writeNumberedPDF(u"in.pdf"_s, 1);
    const Outcome outcome
        = run({ u"publish"_s, u"in.pdf"_s, u"book"_s, u"--set"_s, u"bookTitle=He said \"hi\""_s });
    EXPECT_TRUE(outcome.errors.contains("bookTitle")) << outcome.errors.toStdString();
}

TEST_F(PublishFailure, ASettingsFileInLatin1IsReadWithAWarning)
{
    writeNumberedPDF(u"in.pdf"_s, 1);
    writeTestFile(at(u"latin1.txt"_s),
        "bookTitle=Stra\xDF"
        "e\n");
    const Outcome outcome
        = run({ u"publish"_s, u"in.pdf"_s, u"book"_s, u"--settings"_s, u"latin1.txt"_s });
    EXPECT_EQ(outcome.status, 0);
    EXPECT_TRUE(outcome.errors.contains("latin1.txt"));
    EXPECT_TRUE(readTestFile(at(u"book/javascript/main.js"_s))
                    .contains("bookTitle:\"Stra\xC3\x9F"
                              "e\""));
}

TEST_F(PublishFailure, PagesThatFailAreNamedAndTheRestIsWritten)
{
    writeNumberedPDF(u"in.pdf"_s, 2);
    const Outcome outcome
        = run({ u"publish"_s, u"in.pdf"_s, u"book"_s, u"--pages"_s, u"2-3"_s, u"--json"_s });
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(outcome.errors.contains("page 3 is missing: "));
    const QJsonObject report = outcome.json();
    EXPECT_EQ(report[u"complete"_s], false);
    EXPECT_EQ(report[u"missingPages"_s][0][u"number"_s], 3);
    EXPECT_FALSE(report[u"missingPages"_s][0][u"reason"_s].toString().isEmpty());
    EXPECT_TRUE(QFileInfo::exists(at(u"book/files/page/2.jpg"_s)));
}

TEST_F(PublishFailure, ATruncatedPDFIsMendedAndSaidSoOrRefused)
{
    const QByteArray whole = readTestFile(writeNumberedPDF(u"whole.pdf"_s, 5));
    writeTestFile(at(u"cut.pdf"_s), whole.left(whole.lastIndexOf("startxref")));
    writeTestFile(at(u"head.pdf"_s), whole.left(40));

    expectFailure({ u"head.pdf"_s, u"book"_s }, 3, { "head.pdf", "damaged" });
    const Outcome outcome = run({ u"publish"_s, u"cut.pdf"_s, u"book"_s });
    EXPECT_EQ(outcome.status, 0) << outcome.errors.toStdString();
    EXPECT_TRUE(outcome.errors.contains("cut.pdf is damaged")) << outcome.errors.toStdString();
    EXPECT_TRUE(QFileInfo::exists(at(u"book/files/page/5.jpg"_s)));
}

TEST_F(PublishFailure, AHugePageIsDrawnSmallerAndSaidSo)
{
    PDFBuilder builder;
    builder.addPage({ .mediaBox = { 0, 0, 20000, 20000 } });
    writePDF(u"huge.pdf"_s, builder);
    const Outcome outcome = run({ u"publish"_s, u"huge.pdf"_s, u"book"_s });
    EXPECT_EQ(outcome.status, 0) << outcome.errors.toStdString();
    EXPECT_TRUE(outcome.errors.contains("drawn smaller")) << outcome.errors.toStdString();
}

} // namespace leafcast
