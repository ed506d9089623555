// SPDX-License-Identifier: MIT
#include "publish/BookArchive.h"

#include "publish/BookArchiveCheck.h"
#include "publish/BookContent.h"
#include "publish/BookFixture.h"
#include "support/FileSizeLimit.h"

#include <clocale>
#include <ctime>
#include <gmock/gmock.h>
#include <QProcess>
#include <sys/stat.h>

namespace leafcast {

class BookArchiveTest : public BookFixture {
protected:
    BookArchiveTest()
    {
        resources.addFile(templateFolder + u"style/Bl\u00E4tter.css"_s, "a { }");
        addPage(2, "two");
        addPage(10, "ten");
        writeBook();
        chmod(QFile::encodeName(inBook(u"iPadPreview"_s)).constData(), 0750);
    }

    QByteArray archived(const BookArchive& packed) const
    {
        EXPECT_TRUE(packed.writeTo(zip));
        return FileSteps::read(zip).value_or("none");
    }

    /// One line an entry: name, permissions, method, flag of UTF-8 names, year.
    QString listing() const
    {
        QProcess python;
        python.start(u"python3"_s,
            { u"-c"_s,
                u"import sys, zipfile\n"
                "z = zipfile.ZipFile(sys.argv[1])\n"
                "assert z.testzip() is None\n"
                "for i in z.infolist(): sys.stdout.buffer.write(f'{i.filename} "
                "{i.external_attr >> 16:o} {i.compress_type} {i.flag_bits >> 11 & 1} "
                "{i.date_time[0]}\\n'.encode())"_s,
                zip });
        EXPECT_TRUE(python.waitForFinished());
        EXPECT_EQ(python.exitCode(), 0) << python.readAllStandardError().toStdString();
        return QString::fromUtf8(python.readAllStandardOutput());
    }

    const QString zip = resources.path(u"book.zip"_s);
    const BookArchive archive{ inBook() };
};

TEST_F(BookArchiveTest, HoldsOneFolderInNaturalOrderWithPermissionsAndNoTimes)
{
    EXPECT_GT(archived(archive).size(), 0);
    EXPECT_EQ(listing(),
        u"book/ 40755 0 0 1980\n"
        "book/files/ 40755 0 0 1980\n"
        "book/files/extfile/ 40755 0 0 1980\n"
        "book/files/page/ 40755 0 0 1980\n"
        "book/files/page/2.jpg 100644 0 0 1980\n"
        "book/files/page/10.jpg 100644 0 0 1980\n"
        "book/iPadPreview 100755 8 0 1980\n"
        "book/index.html 100644 8 0 1980\n"
        "book/javascript/ 40755 0 0 1980\n"
        "book/javascript/jquery-1.7.2.min.js 100644 8 0 1980\n"
        "book/javascript/main.js 100644 8 0 1980\n"
        "book/style/ 40755 0 0 1980\n"
        "book/style/Bl\u00E4tter.css 100644 8 1 1980\n"
        "book/style/page.css 100644 8 0 1980\n"_s);
}

TEST_F(BookArchiveTest, TheSameBookMakesTheSameBytesAnywhereAtAnyTime)
{
    const QByteArray here = archived(archive);
    qputenv("TZ", "Asia/Tokyo");
    tzset();
    const std::string locale = setlocale(LC_ALL, nullptr);
    setlocale(LC_ALL, "C");
    const mode_t mask = umask(077);
    FileSteps::remove(inBook());
    QDir().mkpath(inBook());
    writeBook();
    QFile::setPermissions(inBook(u"index.html"_s), QFile::ReadOwner | QFile::WriteOwner);
    chmod(QFile::encodeName(inBook(u"iPadPreview"_s)).constData(), 0700);
    EXPECT_EQ(archived(archive), here);
    umask(mask);
    setlocale(LC_ALL, locale.c_str());
    qunsetenv("TZ");
    tzset();
}

TEST_F(BookArchiveTest, LeavesOutWhatIsNotTheBooks)
{
    const LogCapture log;
    resources.addFile(u"book/files/page/9.jpg"_s, "of an earlier book");
    resources.addFile(u"book/thesis/chapter.txt"_s, "years of work");
    QFile::link(u"/etc"_s, inBook(u"style/link"_s));
    BookArchive own(inBook());
    const BookContent content(*newOutput());
    own.setBelongs([&content](const QString& path) { return content.contains(path); });
    EXPECT_EQ(archived(own).count("9.jpg"), 0);
    EXPECT_EQ(listing().count(u'\n'), 13);
    EXPECT_EQ(log.lines().size(), 1);
}

TEST_F(BookArchiveTest, StoppedOrFailedItLeavesTheOlderFileAndNoOther)
{
    resources.addFile(u"book.zip"_s, "older");
    const auto names = [this] { return QDir(resources.path(QString())).entryList(); };
    const QStringList former = names();

    BookArchive stopped(inBook());
    stopped.setProgress([&stopped](int done, int total) {
        EXPECT_LT(done, total);
        stopped.stop();
    });
    EXPECT_FALSE(stopped.writeTo(zip));
    const auto reason = [this](const QString& path) {
        try {
            return archive.writeTo(path) ? std::string("none") : "stopped";
        } catch (const ArchiveFailure& failure) {
            return std::string(failure.what());
        }
    };
    {
        const FileSizeLimit limit(100);
        EXPECT_EQ(reason(zip), "File too large");
    }
    EXPECT_EQ(reason(resources.path(u"nowhere/book.zip"_s)), "No such file or directory");
    EXPECT_THROW((void)BookArchive(inBook(u"nowhere"_s)).writeTo(zip), ArchiveFailure);
    EXPECT_EQ(FileSteps::read(zip), "older");
    EXPECT_EQ(names(), former);
}

TEST_F(BookArchiveTest, KnowsArchivesOfBooks)
{
    EXPECT_FALSE(isBookArchive(zip));
    resources.addFile(u"book.zip"_s, "words");
    EXPECT_FALSE(isBookArchive(zip));
    archived(archive);
    EXPECT_TRUE(isBookArchive(zip));
    archived(BookArchive(inBook(u"files"_s)));
    EXPECT_FALSE(isBookArchive(zip));

    const QString package = resources.path(u"My.app"_s);
    QDir().mkpath(package + u"/Contents"_s);
    ASSERT_TRUE(QFile::rename(inBook(), package + u"/Contents/Resources"_s));
    archived(BookArchive(package));
    EXPECT_TRUE(isBookArchive(zip));
}

} // namespace leafcast
