// SPDX-License-Identifier: MIT
#include "app/SingleInstance.h"

#include <gtest/gtest.h>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

using namespace Qt::StringLiterals;

namespace leafcast {

class SingleInstanceTest : public testing::Test {
protected:
    /// Starts the program again; answers whether that one may go on.
    bool claimLater(const QStringList& files)
    {
        bool claimed = true;
        const std::unique_ptr<QThread> later(QThread::create([&] {
            SingleInstance second(name);
            claimed = second.claim(files);
        }));
        later->start();
        EXPECT_TRUE(QTest::qWaitFor([&] { return later->isFinished(); }));
        return claimed;
    }

    const QString name = u"leafcast-test-%1"_s.arg(QCoreApplication::applicationPid());
};

TEST_F(SingleInstanceTest, HandsItsFilesToTheOneThatRuns)
{
    SingleInstance first(name);
    ASSERT_TRUE(first.claim({}));
    QSignalSpy again(&first, &SingleInstance::startedAgain);
    EXPECT_FALSE(claimLater({ u"/a/bücher.pdf"_s, u"b.pdf"_s }));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !again.isEmpty(); }));
    EXPECT_EQ(again[0][0].toStringList(), QStringList({ u"/a/bücher.pdf"_s, u"b.pdf"_s }));
}

TEST_F(SingleInstanceTest, TakesOverFromOneThatEndedOrWasKilled)
{
    {
        SingleInstance first(name);
        ASSERT_TRUE(first.claim({}));
    }
    // What a killed program leaves: its socket, and nobody who answers.
    QFile left(QDir::tempPath() + u'/' + name);
    ASSERT_TRUE(left.open(QFile::WriteOnly));
    SingleInstance instance(name);
    ASSERT_TRUE(instance.claim({}));
    QSignalSpy again(&instance, &SingleInstance::startedAgain);
    EXPECT_FALSE(claimLater({ u"c.pdf"_s }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !again.isEmpty(); }));
}

} // namespace leafcast
