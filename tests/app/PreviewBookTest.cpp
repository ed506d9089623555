// SPDX-License-Identifier: MIT
#include "app/PreviewBook.h"

#include "publish/BookFixture.h"
#include "publish/PublishNotifications.h"
#include "support/Gate.h"

#include <QSignalSpy>
#include <QTest>

namespace leafcast {

class PreviewBookTest : public BookFixture {
protected:
    PreviewBookTest()
    {
        useProperties(readerData + TemporaryResources::property("pt_text", "bookTitle", ""));
        addPage(1, picture({ 20, 30 }));
        addPage(2, picture({ 20, 30 }));
    }

    void write(const QString& title)
    {
        flashTemplate->setPropertyValue(u"bookTitle"_s, title);
        preview.write({ pageSource, flashTemplate, nullptr, nullptr }, inBook());
    }
    QByteArray script() const { return bookFile(u"javascript/main.js"_s); }

    PreviewBook preview;
    QSignalSpy written{ &preview, &PreviewBook::written };
};

TEST_F(PreviewBookTest, TellsOnlyOfTheLastOfThoseThatAreAskedForMeanwhile)
{
    Gate gate(ReaderDataProgressMSG, 1);
    write(u"first"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return gate.isReached(); }, 60'000));
    write(u"second"_s);
    write(u"third"_s);
    flashTemplate->setPropertyValue(u"bookTitle"_s, u"typed meanwhile"_s);
    gate.open();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !preview.isWriting(); }, 60'000));
    ASSERT_EQ(written.size(), 1);
    EXPECT_EQ(written[0][0].toString(), inBook(u"index.html"_s));
    EXPECT_TRUE(script().contains("third")) << script().toStdString();
}

TEST_F(PreviewBookTest, WritesNothingAnyMoreOnceItIsStopped)
{
    write(u"first"_s);
    write(u"second"_s);
    preview.stop();
    FileSteps::remove(inBook());
    QCoreApplication::processEvents();
    EXPECT_FALSE(FileSteps::exists(inBook()));
    EXPECT_TRUE(written.isEmpty());

    QDir().mkpath(inBook());
    write(u"third"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !written.isEmpty(); }, 60'000));
    EXPECT_TRUE(script().contains("third"));
}

} // namespace leafcast
