// SPDX-License-Identifier: MIT
#include "app/PreviewServer.h"
#include "support/TestFiles.h"

#include <gtest/gtest.h>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace leafcast {

class PreviewServerTest : public testing::Test {
protected:
    /// A book whose server is a shell script.
    QString bookWithServer(const QByteArray& script)
    {
        const QString program
            = writeTestFile(folder.filePath(u"book/iPadPreview"_s), "#!/bin/sh\n" + script);
        QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return folder.filePath(u"book"_s);
    }

    QTemporaryDir folder;
    PreviewServer server;
};

TEST_F(PreviewServerTest, TellsTheAddressesAndEndsTheServerThatRuns)
{
    const QString book = bookWithServer(
        "echo "
        "'{\"port\":8765,\"addresses\":[\"http://10.0.0.2:8765/\",\"http://127.0.0.1:8765/\"]}'\n"
        "echo $$ >> pids\n"
        "exec sleep 60\n");
    const auto pids = [&] {
        QFile file(book + u"/pids"_s);
        return file.open(QFile::ReadOnly) ? file.readAll().trimmed().split('\n') : QByteArrayList();
    };
    const auto runs = [](const QByteArray& pid) {
        return QFileInfo::exists(u"/proc/"_s + QString::fromLatin1(pid));
    };
    server.start(book);
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return !server.addresses().isEmpty() && pids().size() == 1; }));
    EXPECT_EQ(server.addresses(),
        QStringList({ u"http://10.0.0.2:8765/"_s, u"http://127.0.0.1:8765/"_s }));
    EXPECT_EQ(server.failure(), QString());

    server.start(book);
    ASSERT_TRUE(QTest::qWaitFor([&] { return pids().size() == 2; }));
    EXPECT_FALSE(runs(pids()[0]));
    EXPECT_TRUE(runs(pids()[1]));
    server.stop();
    EXPECT_FALSE(runs(pids()[1]));
    EXPECT_EQ(server.failure(), QString()) << "it ended because it was told to";
}

TEST_F(PreviewServerTest, SaysWhyThereIsNone)
{
    QSignalSpy changed(&server, &PreviewServer::changed);
    server.start(folder.path());
    ASSERT_TRUE(QTest::qWaitFor([&] { return !server.failure().isEmpty(); }));
    EXPECT_GE(changed.size(), 1);
    server.start(bookWithServer("exit 3\n"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return server.failure() == u"it ended with status 3"_s; }));
}

} // namespace leafcast
