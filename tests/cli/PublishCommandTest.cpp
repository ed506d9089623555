// SPDX-License-Identifier: MIT
#include "cli/CommandLine.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace leafcast {

using PublishCommand = CommandLineTest;

TEST_F(PublishCommand, WritesABookAndNamesItsPageOnStandardOutput)
{
    writeNumberedPDF(u"in.pdf"_s, 3);
    const Outcome outcome = run({ u"publish"_s, u"in.pdf"_s, u"book"_s });

    EXPECT_EQ(outcome.status, 0) << outcome.errors.toStdString();
    EXPECT_EQ(outcome.output, at(u"book/index.html"_s).toUtf8() + '\n');
    for (const auto& file : { u"index.html"_s, u"javascript/main.js"_s, u"files/page/1.jpg"_s,
             u"files/page/3.jpg"_s, u"files/search/book.js"_s })
        EXPECT_GT(QFileInfo(at(u"book/"_s + file)).size(), 0) << file.toStdString();
    EXPECT_TRUE(readTestFile(at(u"book/javascript/main.js"_s))
                    .contains("totalPageCount:3,largePageWidth:1224,largePageHeight:1584,"));
}

TEST_F(PublishCommand, ReportsAsJson)
{
    writeNumberedPDF(u"in.pdf"_s, 3);
    const Outcome outcome
        = run({ u"publish"_s, u"in.pdf"_s, u"book"_s, u"--json"_s, u"--pages"_s, u"2-3"_s });

    const QJsonObject report = outcome.json();
    EXPECT_EQ(report[u"version"_s], 1);
    EXPECT_EQ(report[u"complete"_s], true);
    EXPECT_EQ(report[u"pages"_s], 2);
    EXPECT_EQ(report[u"page"_s], at(u"book/index.html"_s));
    EXPECT_GT(report[u"bytes"_s].toInt(), 1000);
    EXPECT_TRUE(report[u"missingPages"_s].toArray().isEmpty());
    EXPECT_FALSE(QFileInfo::exists(at(u"book/files/page/1.jpg"_s)));
}

TEST_F(PublishCommand, ReportsThePlainTitleAndWhatWasWritten)
{
    writeNumberedPDF(u"R&D.pdf"_s, 1);
    const QJsonObject book = run({ u"publish"_s, u"R&D.pdf"_s, u"book"_s, u"--json"_s }).json();
    EXPECT_EQ(book[u"title"_s], u"R&D"_s);
    EXPECT_EQ(book[u"output"_s], at(u"book"_s));

    const QJsonObject package
        = run({ u"publish"_s, u"R&D.pdf"_s, u"out"_s, u"--app"_s, u"--json"_s }).json();
    EXPECT_EQ(package[u"output"_s], at(u"out/R&D.app"_s));
    EXPECT_EQ(package[u"page"_s], at(u"out/R&D.app/Contents/Resources/index.html"_s));
}

TEST_F(PublishCommand, TakesNamesThatLookLikeSomethingElse)
{
    writePicture(u"[2023]/:a.jpg"_s, 30, 40);
    writePicture(u":b.jpg"_s, 30, 40);
    EXPECT_EQ(run({ u"publish"_s, u"[2023]"_s, u"[odd], place"_s }).status, 0);
    EXPECT_TRUE(QFileInfo::exists(at(u"[odd], place/files/page/1.jpg"_s)));
    EXPECT_EQ(run({ u"publish"_s, u":b.jpg"_s, u":out"_s }).status, 0);
    EXPECT_TRUE(QFileInfo::exists(at(u":out/files/page/1.jpg"_s)));
    EXPECT_EQ(run({ u"publish"_s, u"[2023]/"_s, u"out"_s, u"--app"_s }).status, 0);
    EXPECT_TRUE(QFileInfo::exists(at(u"out/[2023].app"_s)));
}

TEST_F(PublishCommand, APageSizeThatIsAskedForBeatsTheDocuments)
{
    writeNumberedPDF(u"in.pdf"_s, 1);
    run({ u"publish"_s, u"in.pdf"_s, u"book"_s, u"--set"_s, u"pageWidth=500"_s });
    const QByteArray script = readTestFile(at(u"book/javascript/main.js"_s));
    EXPECT_TRUE(script.contains("pageWidth:500,"));
    EXPECT_TRUE(script.contains("pageHeight:792,"));
}

TEST_F(PublishCommand, TakesTheTitleFromOptionDocumentOrFileAndEscapesTheLastTwo)
{
    PDFBuilder titled;
    titled.addPage();
    titled.setTitle(u"Wood & <Leaves>"_s);
    writePDF(u"titled.pdf"_s, titled);
    writeNumberedPDF(u"R&D.pdf"_s, 1);

    run({ u"publish"_s, u"titled.pdf"_s, u"a"_s });
    run({ u"publish"_s, u"R&D.pdf"_s, u"b"_s });
    run({ u"publish"_s, u"R&D.pdf"_s, u"c"_s, u"--title"_s, u"Trees &amp; co"_s });

    EXPECT_TRUE(
        readTestFile(at(u"a/index.html"_s)).contains("<title>Wood &amp; &lt;Leaves&gt;</title>"));
    EXPECT_TRUE(readTestFile(at(u"b/index.html"_s)).contains("<title>R&amp;D</title>"));
    EXPECT_TRUE(readTestFile(at(u"c/index.html"_s)).contains("<title>Trees &amp; co</title>"));
}

TEST_F(PublishCommand, AnOptionBeatsTheEnvironmentWhichBeatsTheDefault)
{
    writeNumberedPDF(u"in.pdf"_s, 1);
    run({ u"publish"_s, u"in.pdf"_s, u"best"_s });
    run({ u"publish"_s, u"in.pdf"_s, u"small"_s }, { u"LEAFCAST_QUALITY=smallest"_s });
    run({ u"publish"_s, u"in.pdf"_s, u"option"_s, u"--quality"_s, u"0"_s },
        { u"LEAFCAST_QUALITY=smallest"_s });

    const auto size = [this](const QString& book) {
        return QFileInfo(at(book + u"/files/page/1.jpg"_s)).size();
    };
    EXPECT_LT(size(u"small"_s), size(u"best"_s));
    EXPECT_EQ(size(u"option"_s), size(u"best"_s));
}

TEST_F(PublishCommand, AppliesStyleSettingsFileAndSingleValuesInThatOrder)
{
    writeNumberedPDF(u"in.pdf"_s, 1);
    writeTestFile(at(u"mine.txt"_s), "toolBarColor=0x010203\nbackgroundColor=0x040506\n");
    const Outcome outcome = run({ u"publish"_s, u"in.pdf"_s, u"book"_s, u"--style"_s, u"Night"_s,
        u"--settings"_s, u"mine.txt"_s, u"--set"_s, u"backgroundColor=#ABCDEF"_s, u"--set"_s,
        u"viewMode=Single"_s });

    EXPECT_EQ(outcome.status, 0) << outcome.errors.toStdString();
    const QByteArray script = readTestFile(at(u"book/javascript/main.js"_s));
    EXPECT_TRUE(script.contains("toolBarColor:\"#010203\""));
    EXPECT_TRUE(script.contains("backgroundColor:\"#abcdef\""));
    EXPECT_TRUE(script.contains("viewMode:\"Single\""));
    EXPECT_TRUE(script.contains("bgImageURL:\"files/extfile/bgImageURL.jpg\""));
}

TEST_F(PublishCommand, TakesAFolderOfPicturesInNaturalOrder)
{
    writePicture(u"scans/10.jpg"_s, 30, 40);
    writePicture(u"scans/9.jpg"_s, 60, 80);
    writeTestFile(at(u"scans/notes.txt"_s), "no picture");
    writeTestFile(at(u"scans/._9.jpg"_s), "the companion that some systems leave");
    const Outcome outcome = run({ u"publish"_s, u"scans"_s, u"book"_s });

    EXPECT_EQ(outcome.status, 0) << outcome.errors.toStdString();
    const QByteArray script = readTestFile(at(u"book/javascript/main.js"_s));
    EXPECT_TRUE(script.contains("totalPageCount:2,largePageWidth:60,largePageHeight:80,"));
    EXPECT_TRUE(readTestFile(at(u"book/index.html"_s)).contains("<title>scans</title>"));
}

TEST_F(PublishCommand, ReplacesAnEarlierBookButNothingElse)
{
    writeNumberedPDF(u"in.pdf"_s, 1);
    EXPECT_EQ(run({ u"publish"_s, u"in.pdf"_s, u"book"_s }).status, 0);
    EXPECT_EQ(run({ u"publish"_s, u"in.pdf"_s, u"book"_s }).status, 0);

    writeTestFile(at(u"thesis/chapter.txt"_s), "years of work");
    const Outcome refused = run({ u"publish"_s, u"in.pdf"_s, u"thesis"_s });
    EXPECT_EQ(refused.status, 4);
    EXPECT_TRUE(refused.errors.contains("chapter.txt")) << refused.errors.toStdString();
    EXPECT_FALSE(QFileInfo::exists(at(u"thesis/index.html"_s)));

    EXPECT_EQ(run({ u"publish"_s, u"in.pdf"_s, u"thesis"_s, u"--force"_s }).status, 0);
    EXPECT_EQ(readTestFile(at(u"thesis/chapter.txt"_s)), "years of work");
}

TEST_F(PublishCommand, WritesAPackageIntoTheFolder)
{
    writeNumberedPDF(u"in.pdf"_s, 1);
    const Outcome outcome
        = run({ u"publish"_s, u"in.pdf"_s, u"out"_s, u"--app"_s, u"--name"_s, u"Album.html"_s });
    EXPECT_EQ(outcome.output, at(u"out/Album.app/Contents/Resources/index.html"_s).toUtf8() + '\n');
    EXPECT_TRUE(QFileInfo::exists(at(u"out/Album.app/Contents/Resources/files/page/1.jpg"_s)));

    writeTestFile(at(u"out/Other.app/keep"_s), "");
    const Outcome refused
        = run({ u"publish"_s, u"in.pdf"_s, u"out"_s, u"--app"_s, u"--name"_s, u"Other"_s });
    EXPECT_EQ(refused.status, 4);
    EXPECT_TRUE(QFileInfo::exists(at(u"out/Other.app/keep"_s)));
}

TEST_F(PublishCommand, CtrlCEndsItWithoutABookOrHalfAPage)
{
    writeNumberedPDF(u"in.pdf"_s, 3000);
    const Outcome outcome = runInterrupted({ u"publish"_s, u"in.pdf"_s, u"book"_s });
    EXPECT_EQ(outcome.status, 130);
    EXPECT_TRUE(outcome.output.isEmpty());
    EXPECT_FALSE(QFileInfo::exists(at(u"book"_s)));
}

TEST_F(PublishCommand, LeavesOutLinksAndOutlineWhenTold)
{
    PDFBuilder builder;
    builder.addPage();
    builder.addURLLink(0, { 10, 10, 50, 50 }, "https://leaves.example/");
    builder.setOutline({ { u"Chapter"_s, builder.explicitDestination(0) } });
    writePDF(u"in.pdf"_s, builder);

    run({ u"publish"_s, u"in.pdf"_s, u"with"_s });
    run({ u"publish"_s, u"in.pdf"_s, u"without"_s, u"--no-links"_s, u"--no-outline"_s });

    EXPECT_TRUE(
        readTestFile(at(u"with/files/search/book.js"_s)).contains("https://leaves.example/"));
    EXPECT_TRUE(readTestFile(at(u"with/files/search/book.js"_s)).contains("Chapter"));
    EXPECT_FALSE(
        readTestFile(at(u"without/files/search/book.js"_s)).contains("https://leaves.example/"));
    EXPECT_FALSE(readTestFile(at(u"without/files/search/book.js"_s)).contains("Chapter"));
}

} // namespace leafcast
