// SPDX-License-Identifier: MIT
#include "cli/CommandLine.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace leafcast {

using PublishCommand = CommandLineTest;

TEST_F(PublishCommand, WritesABookAndNamesItsPageOnStandardOutput)
{
    writeNumberedPDF(u"in.pdf"_s, 3);
    const Outcome outcome = run("publish in.pdf book");

    EXPECT_EQ(outcome.status, 0) << outcome.errors.toStdString();
    EXPECT_EQ(outcome.output, at(u"book/index.html"_s).toUtf8() + '\n');
    for (const auto& file : { u"index.html"_s, u"javascript/main.js"_s, u"files/page/1.jpg"_s,
             u"files/page/3.jpg"_s, u"files/search/book.js"_s })
        EXPECT_GT(QFileInfo(at(u"book/"_s + file)).size(), 0) << file.toStdString();
    EXPECT_TRUE(content("book/javascript/main.js")
                    .contains("totalPageCount:3,largePageWidth:1224,largePageHeight:1584,"));
}

TEST_F(PublishCommand, ReportsAsJson)
{
    writeNumberedPDF(u"R&D.pdf"_s, 3);
    const QJsonObject book = run("publish R&D.pdf book --json --pages 2-3").json();
    EXPECT_EQ(book[u"version"_s], 1);
    EXPECT_EQ(book[u"complete"_s], true);
    EXPECT_EQ(book[u"title"_s], u"R&D"_s);
    EXPECT_EQ(book[u"pages"_s], 2);
    EXPECT_EQ(book[u"output"_s], at(u"book"_s));
    EXPECT_GT(book[u"bytes"_s].toInt(), 1000);
    EXPECT_TRUE(book[u"missingPages"_s].toArray().isEmpty());

    const QJsonObject package = run("publish R&D.pdf out --app --json").json();
    EXPECT_EQ(package[u"output"_s], at(u"out/R&D.app"_s));
    EXPECT_EQ(package[u"page"_s], at(u"out/R&D.app/Contents/Resources/index.html"_s));
}

TEST_F(PublishCommand, TakesNamesThatLookLikeSomethingElse)
{
    writePicture(u"[2023]/:a.jpg"_s, 30, 40);
    writePicture(u":b.jpg"_s, 30, 40);
    EXPECT_EQ(run({ u"publish"_s, u"[2023]"_s, u"[odd], place"_s }).status, 0);
    EXPECT_TRUE(exists("[odd], place/files/page/1.jpg"));
    EXPECT_EQ(run("publish :b.jpg :out").status, 0);
    EXPECT_TRUE(exists(":out/files/page/1.jpg"));
    EXPECT_EQ(run("publish [2023]/ out --app").status, 0);
    EXPECT_TRUE(exists("out/[2023].app"));
    EXPECT_EQ(run("publish :b.jpg out --app --json").json()[u"output"_s], at(u"out/:b.app"_s));
}

TEST_F(PublishCommand, TakesTheTitleFromOptionDocumentOrFileAndEscapesTheLastTwo)
{
    PDFBuilder titled;
    titled.addPage();
    titled.setTitle(u"Wood & <Leaves>"_s);
    writePDF(u"titled.pdf"_s, titled);
    writeNumberedPDF(u"R&D.pdf"_s, 1);

    run("publish titled.pdf a");
    run("publish R&D.pdf b");
    run({ u"publish"_s, u"R&D.pdf"_s, u"c"_s, u"--title"_s, u"Trees &amp; co"_s });

    EXPECT_TRUE(content("a/index.html").contains("<title>Wood &amp; &lt;Leaves&gt;</title>"));
    EXPECT_TRUE(content("b/index.html").contains("<title>R&amp;D</title>"));
    EXPECT_TRUE(content("c/index.html").contains("<title>Trees &amp; co</title>"));
}

TEST_F(PublishCommand, PutsDescriptionAndKeywordsIntoThePageAsTheyWereTyped)
{
    writeNumberedPDF(u"in.pdf"_s, 1);
    run({ u"publish"_s, u"in.pdf"_s, u"a"_s, u"--description"_s, u"Wood &amp; leaves"_s,
        u"--keywords"_s, QString() });
    const QByteArray page = content("a/index.html");
    EXPECT_TRUE(page.contains("<meta name=\"description\" content=\"Wood &amp; leaves\">"));
    EXPECT_TRUE(page.contains("<meta name=\"keywords\" content=\"\">"));
}

TEST_F(PublishCommand, AnOptionBeatsTheEnvironmentWhichBeatsTheDefault)
{
    writeNumberedPDF(u"in.pdf"_s, 1);
    run("publish in.pdf best");
    run("publish in.pdf small", { u"LEAFCAST_QUALITY=smallest"_s });
    run("publish in.pdf option --quality 0", { u"LEAFCAST_QUALITY=smallest"_s });

    const auto size = [this](const QString& book) {
        return QFileInfo(at(book + u"/files/page/1.jpg"_s)).size();
    };
    EXPECT_LT(size(u"small"_s), size(u"best"_s));
    EXPECT_EQ(size(u"option"_s), size(u"best"_s));
}

TEST_F(PublishCommand, AppliesStyleSettingsFilePageSizeAndSingleValuesInThatOrder)
{
    writeNumberedPDF(u"in.pdf"_s, 1);
    writeTestFile(at(u"mine.txt"_s), "toolBarColor=0x010203\nbackgroundColor=0x040506\n");
    const Outcome outcome
        = run("publish in.pdf book --style Night --settings mine.txt --set "
              "backgroundColor=#ABCDEF --set viewMode=Single --set pageWidth=500");

    EXPECT_EQ(outcome.status, 0) << outcome.errors.toStdString();
    const QByteArray script = content("book/javascript/main.js");
    EXPECT_TRUE(script.contains("toolBarColor:\"#010203\""));
    EXPECT_TRUE(script.contains("backgroundColor:\"#abcdef\""));
    EXPECT_TRUE(script.contains("viewMode:\"Single\""));
    EXPECT_TRUE(script.contains("pageWidth:500,pageHeight:792,"));
    EXPECT_TRUE(script.contains("bgImageURL:\"files/extfile/bgImageURL.jpg\""));
}

TEST_F(PublishCommand, TakesAFolderOfPicturesInNaturalOrder)
{
    writePicture(u"scans/10.jpg"_s, 30, 40);
    writePicture(u"scans/9.jpg"_s, 60, 80);
    writeTestFile(at(u"scans/notes.txt"_s), "no picture");
    writeTestFile(at(u"scans/._9.jpg"_s), "the companion that some systems leave");
    const Outcome outcome = run("publish scans book");

    EXPECT_EQ(outcome.status, 0) << outcome.errors.toStdString();
    const QByteArray script = content("book/javascript/main.js");
    EXPECT_TRUE(script.contains("totalPageCount:2,largePageWidth:60,largePageHeight:80,"));
    EXPECT_TRUE(content("book/index.html").contains("<title>scans</title>"));
}

TEST_F(PublishCommand, ReplacesAnEarlierBookButNothingElse)
{
    writeNumberedPDF(u"in.pdf"_s, 1);
    EXPECT_EQ(run("publish in.pdf book").status, 0);
    EXPECT_EQ(run("publish in.pdf book").status, 0);

    writeTestFile(at(u"thesis/chapter.txt"_s), "years of work");
    const Outcome refused = run("publish in.pdf thesis");
    EXPECT_EQ(refused.status, 4);
    EXPECT_TRUE(refused.errors.contains("chapter.txt")) << refused.errors.toStdString();
    EXPECT_FALSE(exists("thesis/index.html"));

    EXPECT_EQ(run("publish in.pdf thesis --force").status, 0);
    EXPECT_EQ(content("thesis/chapter.txt"), "years of work");
}

TEST_F(PublishCommand, PacksTheBookOrPackageBesideItButOverNothingElse)
{
    writeNumberedPDF(u"in.pdf"_s, 2);
    const QJsonObject packed = run("publish in.pdf book/ --zip --json").json();
    EXPECT_EQ(packed[u"archive"_s][u"path"_s], at(u"book.zip"_s));
    EXPECT_EQ(packed[u"archive"_s][u"bytes"_s], QFileInfo(at(u"book.zip"_s)).size());
    const Outcome again = run("publish in.pdf book --zip --pages 2-3");
    EXPECT_EQ(again.status, 1);
    EXPECT_TRUE(again.errors.contains(at(u"book.zip, "_s).toUtf8())) << again.errors.toStdString();
    EXPECT_FALSE(content("book.zip").contains("page/1.jpg"));
    EXPECT_EQ(run("publish in.pdf out --app --zip --name Album").status, 0);
    EXPECT_TRUE(content("out/Album.zip").contains("Album.app/Contents/Resources/index.html"));

    writeTestFile(at(u"other.zip"_s), "a thesis");
    const Outcome refused = run("publish in.pdf other --zip");
    EXPECT_EQ(refused.status, 4);
    EXPECT_TRUE(refused.errors.contains("other.zip")) << refused.errors.toStdString();
    EXPECT_FALSE(exists("other"));
    EXPECT_EQ(content("other.zip"), "a thesis");
    EXPECT_EQ(run("publish in.pdf other --zip --force").status, 0);
    EXPECT_TRUE(content("other.zip").startsWith("PK"));
    EXPECT_EQ(run("publish in.pdf / --zip --force").status, 2);
}

TEST_F(PublishCommand, WritesAPackageIntoTheFolder)
{
    writeNumberedPDF(u"in.pdf"_s, 1);
    const Outcome outcome = run("publish in.pdf out --app --name Album.html");
    EXPECT_EQ(outcome.output, at(u"out/Album.app/Contents/Resources/index.html"_s).toUtf8() + '\n');
    EXPECT_TRUE(exists("out/Album.app/Contents/Resources/files/page/1.jpg"));

    writeTestFile(at(u"out/Other.app/keep"_s), "");
    const Outcome refused = run("publish in.pdf out --app --name Other");
    EXPECT_EQ(refused.status, 4);
    EXPECT_TRUE(exists("out/Other.app/keep"));
}

TEST_F(PublishCommand, CallsThePackageAsItIsAsked)
{
    writeNumberedPDF(u"in.pdf"_s, 1);
    const QString longest(251, u'x');
    for (const auto& [name, package] : std::initializer_list<std::pair<QString, QString>>{
             { u"\u00DCber \"50 %\" & 'co'.html"_s, u"\u00DCber \"50 %\" & 'co'.app"_s },
             { u"Vol. 3"_s, u"Vol. 3.app"_s }, { u"Album."_s, u"Album.app"_s },
             { longest, longest + u".app"_s } }) {
        const Outcome outcome
            = run({ u"publish"_s, u"in.pdf"_s, u"out"_s, u"--app"_s, u"--name"_s, name });
        EXPECT_EQ(outcome.status, 0) << outcome.errors.toStdString();
        EXPECT_TRUE(QFileInfo::exists(at(u"out/"_s + package + u"/Contents/Info.plist"_s)))
            << outcome.output.toStdString();
    }
}

TEST_F(PublishCommand, CtrlCEndsItWithoutABookOrHalfAPage)
{
    writeNumberedPDF(u"in.pdf"_s, 3000);
    const Outcome outcome = runSignalled(SIGINT, { program, u"publish"_s, u"in.pdf"_s, u"book"_s });
    EXPECT_EQ(outcome.status, 130);
    EXPECT_TRUE(outcome.output.isEmpty());
    EXPECT_FALSE(exists("book"));
}

TEST_F(PublishCommand, OutlivesATerminalThatItIsToOutlive)
{
    writeNumberedPDF(u"in.pdf"_s, 100);
    EXPECT_EQ(
        runSignalled(SIGHUP, { u"nohup"_s, program, u"publish"_s, u"in.pdf"_s, u"book"_s }).status,
        0);
}

TEST_F(PublishCommand, WaitsForAnotherThatWritesIntoTheFolder)
{
    writeNumberedPDF(u"in.pdf"_s, 1);
    const Outcome outcome = runBesideAnother(u"book"_s, { u"publish"_s, u"in.pdf"_s, u"book"_s });
    EXPECT_EQ(outcome.status, 0) << outcome.errors.toStdString();
    EXPECT_TRUE(outcome.errors.contains("waiting")) << outcome.errors.toStdString();
}

TEST_F(PublishCommand, LeavesOutLinksAndOutlineWhenTold)
{
    PDFBuilder builder;
    builder.addPage();
    builder.addURLLink(0, { 10, 10, 50, 50 }, "https://leaves.example/");
    builder.setOutline({ { u"Chapter"_s, builder.explicitDestination(0) } });
    writePDF(u"in.pdf"_s, builder);

    for (const bool with : { true, false }) {
        run(with ? "publish in.pdf book" : "publish in.pdf book --no-links --no-outline");
        EXPECT_EQ(content("book/files/search/book.js").contains("https://leaves.example/"), with);
        EXPECT_EQ(content("book/files/search/book.js").contains("Chapter"), with);
    }
}

} // namespace leafcast
