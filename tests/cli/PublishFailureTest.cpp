// SPDX-License-Identifier: MIT
#include "base/FileSteps.h"
#include "base/ResourceFolder.h"
#include "cli/CommandLine.h"

#include <QJsonArray>
#include <QProcess>
#include <QStorageInfo>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace leafcast {

/// Each failure: one sentence that names the file and the reason, the exit status, and nothing
/// touched.
class PublishFailure : public CommandLineTest {
protected:
    void expectFailure(
        const QByteArray& arguments, int status, const QList<QByteArray>& named) const
    {
        const Outcome outcome = run("publish " + arguments);
        EXPECT_EQ(outcome.status, status) << outcome.errors.toStdString();
        EXPECT_EQ(outcome.errors.count('\n'), 1) << outcome.errors.toStdString();
        for (const QByteArray& word : named)
            EXPECT_TRUE(outcome.errors.contains(word))
                << word.toStdString() << " in " << outcome.errors.toStdString();
        EXPECT_TRUE(outcome.output.isEmpty()) << outcome.output.toStdString();
        EXPECT_FALSE(exists("book"));
    }
};

TEST_F(PublishFailure, InputsThatAreNoReadablePDF)
{
    writeTestFile(at(u"empty.pdf"_s), "");
    writeTestFile(at(u"text.pdf"_s), "This is no PDF at all, only words.");
    writePDF(u"none.pdf"_s, PDFBuilder());
    QDir(iFolder.path()).mkpath(u"nothing"_s);
    writeTestFile(at(u"broken.jpg"_s), "no picture");

    expectFailure("missing.pdf book", 3, { "missing.pdf", "exist" });
    expectFailure("empty.pdf book", 3, { "empty.pdf", "empty" });
    expectFailure("text.pdf book", 3, { "text.pdf", "not a PDF" });
    expectFailure("none.pdf book", 3, { "none.pdf", "no pages" });
    writePicture(u"1.jpg"_s, 30, 40);
    expectFailure("nothing book", 3, { "nothing", "no images" });
    expectFailure("1.jpg nothing book", 3, { "nothing", "no images" });
    expectFailure("missing.jpg book", 3, { "missing.jpg", "exist" });
    expectFailure("broken.jpg book", 3, { "broken.jpg" });
}

TEST_F(PublishFailure, LockedDocuments)
{
    const QString plain = writeNumberedPDF(u"plain.pdf"_s, 1);
    ASSERT_EQ(QProcess::execute(u"qpdf"_s,
                  { u"--encrypt"_s, u"secret"_s, u"owner"_s, u"256"_s, u"--"_s, plain,
                      at(u"locked.pdf"_s) }),
        0);
    writeTestFile(at(u"password.txt"_s), "secret\n");

    expectFailure("locked.pdf book", 5, { "locked.pdf", "password" });
    expectFailure("locked.pdf book --password wrong", 5, { "locked.pdf", "wrong" });
    expectFailure("locked.pdf book --password-file missing.txt", 3, { "missing.txt" });
    EXPECT_EQ(run("publish locked.pdf a --password secret").status, 0);
    EXPECT_EQ(run("publish locked.pdf b --password-file password.txt").status, 0);
    EXPECT_EQ(run("publish locked.pdf c", { u"LEAFCAST_PASSWORD=secret"_s }).status, 0);
}

TEST_F(PublishFailure, PageRangesThatNameNoPage)
{
    writeNumberedPDF(u"in.pdf"_s, 4);
    expectFailure("in.pdf book --pages 5-9", 2, { "in.pdf", "5-9", "4 pages" });
    expectFailure("in.pdf book --pages abc", 2, { "in.pdf", "abc" });
    expectFailure("in.pdf book --pages 1-2000000000", 2, { "1-2000000000" });
}

TEST_F(PublishFailure, TemplatesStylesAndSettings)
{
    writeNumberedPDF(u"in.pdf"_s, 1);
    writeTestFile(at(u"no-equals.txt"_s), "just words\n");
    expectFailure("in.pdf book --template glider", 2, { "glider", "float" });
    expectFailure("in.pdf book --style Glitter", 2, { "Glitter", "Wall-line" });
    expectFailure("in.pdf book --settings missing.txt", 3, { "missing.txt", "exist" });
    expectFailure("in.pdf book --settings no-equals.txt", 3, { "no-equals.txt", "KEY=VALUE" });
    expectFailure("in.pdf book --set noSuchKey=1", 2, { "noSuchKey" });
    expectFailure("in.pdf book --set turnDuration=soon", 2, { "turnDuration", "number" });
    expectFailure("in.pdf book --set viewMode=Triple", 2, { "viewMode", "Single" });
    expectFailure("in.pdf book --set LogoFile=missing.png", 3, { "missing.png" });
}

TEST_F(PublishFailure, NamesThatFilesCannotHave)
{
    writeNumberedPDF(u"in.pdf"_s, 1);
    writeNumberedPDF(u".hidden.pdf"_s, 1);
    const auto expectRefused = [this](const QStringList& options, int status, const char* reason) {
        const Outcome outcome = run(QStringList{ u"publish"_s } + options);
        EXPECT_EQ(outcome.status, status) << reason;
        EXPECT_EQ(outcome.errors.count('\n'), 1) << outcome.errors.toStdString();
        EXPECT_TRUE(outcome.errors.contains(reason)) << outcome.errors.toStdString();
        EXPECT_FALSE(exists("book"));
    };
    for (const auto& [name, reason] : std::initializer_list<std::pair<QString, const char*>>{
             { u""_s, "empty" }, { u"\t"_s, "empty" }, { u"a/b"_s, "folder" }, { u".."_s, "dot" },
             { u".html"_s, "dot" }, { u"a\nb"_s, "control character" } })
        for (const QString& kind : { u"--app"_s, u"--json"_s })
            expectRefused({ u"in.pdf"_s, u"book"_s, kind, u"--name"_s, name }, 2, reason);
    expectRefused({ u".hidden.pdf"_s, u"book"_s, u"--app"_s }, 2, "--name");
    const QString tooLong(126, u'\u00FC');
    expectRefused({ u"in.pdf"_s, u"book"_s, u"--app"_s, u"--name"_s, tooLong }, 4, "256 bytes");
    expectRefused({ u"in.pdf"_s, u"book"_s, u"--name"_s, tooLong }, 4, "257 bytes");
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

    const auto expectNamed = [&](const QByteArray& options, const QByteArray& file) {
        const Outcome outcome = run("publish in.pdf book " + options, variables);
        EXPECT_EQ(outcome.status, 3) << outcome.errors.toStdString();
        EXPECT_EQ(outcome.errors.count('\n'), 1);
        EXPECT_TRUE(outcome.errors.contains(file)) << outcome.errors.toStdString();
    };
    expectNamed("--style Night", "Night/tmplSetting.txt");
    expectNamed("--template torn", "torn/flashTemplate.xml, line 2");
    expectNamed("--template words", "words/flashTemplate.xml");
    EXPECT_FALSE(exists("book"));
}

TEST_F(PublishFailure, SettingsFilesInOtherEncodingsAreRead)
{
    writeNumberedPDF(u"in.pdf"_s, 1);
    const QString text = u"bookTitle=Stra\u00DFe\n"_s;
    const QString marked = u'\uFEFF' + text;
    writeTestFile(at(u"utf16.txt"_s),
        QByteArray(reinterpret_cast<const char*>(marked.utf16()), marked.size() * 2));
    writeTestFile(at(u"latin1.txt"_s), text.toLatin1());
    for (const QString& file : { u"utf16.txt"_s, u"latin1.txt"_s }) {
        const Outcome outcome
            = run({ u"publish"_s, u"in.pdf"_s, u"book"_s, u"--settings"_s, file });
        EXPECT_EQ(outcome.status, 0) << outcome.errors.toStdString();
        EXPECT_EQ(outcome.errors.contains(file.toUtf8()), file == u"latin1.txt"_s);
        EXPECT_TRUE(
            content("book/javascript/main.js").contains(u"bookTitle:\"Stra\u00DFe\""_s.toUtf8()));
    }
}

TEST_F(PublishFailure, OutputsThatCannotBeWritten)
{
    writeNumberedPDF(u"in.pdf"_s, 1);
    writeTestFile(at(u"file"_s), "kept");
    expectFailure("in.pdf file", 4, { "file" });
    expectFailure("in.pdf file/below", 4, { "file/below" });
    EXPECT_EQ(run({ u"publish"_s, u"in.pdf"_s, u""_s }).status, 2);
    expectFailure("in.pdf book --log-file file/log", 4, { "file/log" });
    EXPECT_EQ(content("file"), "kept");
}

TEST_F(PublishFailure, BooksThatTheDiskHasNoRoomForWithTheFilesOfTheirSettings)
{
    writeNumberedPDF(u"in.pdf"_s, 1);
    QFile logo(at(u"logo.png"_s));
    ASSERT_TRUE(logo.open(QIODevice::WriteOnly));
    ASSERT_TRUE(logo.resize(QStorageInfo(iFolder.path()).bytesAvailable() + (qint64{ 1 } << 30)));

    rlimit earlier{};
    getrlimit(RLIMIT_FSIZE, &earlier);
    const rlimit small{ .rlim_cur = 1 << 24, .rlim_max = earlier.rlim_max };
    setrlimit(RLIMIT_FSIZE, &small); // a failure of this test is not to fill the disk
    expectFailure(
        "in.pdf book --set LogoFile=" + logo.fileName().toUtf8(), 4, { "no room", "book" });
    setrlimit(RLIMIT_FSIZE, &earlier);
}

TEST_F(PublishFailure, InputsThatTheOutputWouldReplace)
{
    writePicture(u"book/files/page/1.jpg"_s, 30, 40);
    writePicture(u"out/Album.app/Contents/Resources/files/page/1.jpg"_s, 30, 40);
    const auto refused = [this](const QByteArray& arguments, const char* kept) {
        const Outcome outcome = run("publish --force " + arguments);
        EXPECT_EQ(outcome.status, 4) << outcome.errors.toStdString();
        EXPECT_TRUE(outcome.errors.contains("would replace")) << outcome.errors.toStdString();
        EXPECT_TRUE(exists(kept));
    };
    refused("book/files/page/1.jpg book", "book/files/page/1.jpg");
    refused("out/Album.app/Contents/Resources/files/page out --app --name Album",
        "out/Album.app/Contents/Resources/files/page/1.jpg");
    QDir(iFolder.path()).mkpath(u"links"_s);
    QFile::link(at(u"book/files/page/1.jpg"_s), at(u"links/2.jpg"_s));
    refused("links book", "book/files/page/1.jpg");
}

TEST_F(PublishFailure, ValuesThatBreakTheScriptAreToldBeforehand)
{
    writeNumberedPDF(u"in.pdf"_s, 1);
    const Outcome outcome = run("publish in.pdf book --set bookTitle=a\\b");
    EXPECT_TRUE(outcome.errors.contains("bookTitle")) << outcome.errors.toStdString();
}

TEST_F(PublishFailure, PagesThatFailAreNamedAndTheRestIsWritten)
{
    writeNumberedPDF(u"in.pdf"_s, 2);
    const Outcome outcome = run("publish in.pdf book --pages 2-3 --json");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(outcome.errors.contains("page 3 is missing: "));
    const QJsonObject report = outcome.json();
    EXPECT_EQ(report[u"complete"_s], false);
    EXPECT_EQ(report[u"pages"_s], 1);
    EXPECT_EQ(report[u"missingPages"_s][0][u"number"_s], 3);
    EXPECT_FALSE(report[u"missingPages"_s][0][u"reason"_s].toString().isEmpty());
    EXPECT_TRUE(exists("book/files/page/2.jpg"));
}

TEST_F(PublishFailure, PicturesWithoutTheirEndAreNamed)
{
    for (const QString& name : { u"1.jpg"_s, u"2.png"_s }) {
        const QByteArray whole = readTestFile(writePicture(u"in/"_s + name, 300, 400));
        EXPECT_EQ(run("publish in book").errors.count("missing"), 0);
        writeTestFile(at(u"in/"_s + name), whole.chopped(20));
        EXPECT_TRUE(run("publish in book").errors.contains((name + u" is missing"_s).toUtf8()));
        QFile::remove(at(u"in/"_s + name));
    }
}

TEST_F(PublishFailure, WithoutAnyPageThereIsNoBook)
{
    PDFBuilder builder;
    builder.addPage();
    builder.replaceObject(builder.pageObject(0), "null");
    writePDF(u"in.pdf"_s, builder);
    expectFailure("in.pdf book", 3, { "in.pdf", "no page" });
}

TEST_F(PublishFailure, StandardStreamsThatCannotBeUsed)
{
    writePicture(u"1.jpg"_s, 30, 40);
    const QStringList publish{ u"publish"_s, u"1.jpg"_s, u"book"_s };
    const Outcome full = runRedirected(u"> /dev/full"_s, publish);
    EXPECT_EQ(full.status, 4);
    EXPECT_TRUE(full.errors.contains("standard output")) << full.errors.toStdString();
    EXPECT_EQ(runRedirected(u"<&- >&- 2>&-"_s, publish).status, 4);
    EXPECT_TRUE(runRedirected(u"$(printf '\\344')"_s, publish).errors.contains("UTF-8"));
}

TEST_F(PublishFailure, ATruncatedPDFIsMendedAndSaidSoOrRefused)
{
    const QByteArray whole = readTestFile(writeNumberedPDF(u"whole.pdf"_s, 5));
    writeTestFile(at(u"cut.pdf"_s), whole.left(whole.lastIndexOf("startxref")));
    writeTestFile(at(u"head.pdf"_s), whole.left(40));

    expectFailure("head.pdf book", 3, { "head.pdf", "damaged" });
    const Outcome outcome = run("publish cut.pdf book");
    EXPECT_EQ(outcome.status, 0) << outcome.errors.toStdString();
    EXPECT_TRUE(outcome.errors.contains("cut.pdf is damaged")) << outcome.errors.toStdString();
    EXPECT_TRUE(exists("book/files/page/5.jpg"));
}

TEST_F(PublishFailure, AHugePageIsDrawnSmallerAndSaidSo)
{
    PDFBuilder builder;
    builder.addPage({ .mediaBox = { 0, 0, 20000, 20000 } });
    writePDF(u"huge.pdf"_s, builder);
    const Outcome outcome = run("publish huge.pdf book");
    EXPECT_EQ(outcome.status, 0) << outcome.errors.toStdString();
    EXPECT_TRUE(outcome.errors.contains("drawn smaller")) << outcome.errors.toStdString();
}

} // namespace leafcast
