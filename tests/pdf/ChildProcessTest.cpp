// SPDX-License-Identifier: MIT
#include "pdf/ChildProcess.h"

#include <csignal>
#include <gtest/gtest.h>
#include <sys/wait.h>

using namespace Qt::StringLiterals;
using namespace leafcast;
using How = ChildProcess::Ending::How;

namespace {

class ChildProcessTest : public testing::Test {
protected:
    ~ChildProcessTest() override { std::signal(SIGCHLD, SIG_DFL); }

    void startAndWaitForItsEnd(const QString& script)
    {
        const FileDescriptor socket = iChild.start(u"/bin/sh"_s, { u"-c"_s, script });
        ASSERT_TRUE(socket.isOpen()) << iChild.error().toStdString();
        char byte = 0;
        EXPECT_EQ(read(socket.get(), &byte, 1), 0);
    }

    ChildProcess iChild;
};

} // namespace

TEST_F(ChildProcessTest, TellsHowItEnded)
{
    startAndWaitForItsEnd(u"echo no room left >&2; exit 7"_s);
    const auto exited = iChild.end();
    EXPECT_EQ(exited.how, How::ExitStatus);
    EXPECT_EQ(exited.code, 7);
    EXPECT_EQ(exited.lastWords, u"no room left"_s);

    startAndWaitForItsEnd(u"kill -11 $$"_s);
    const auto killed = iChild.end();
    EXPECT_EQ(killed.how, How::Signal);
    EXPECT_EQ(killed.code, SIGSEGV);
}

TEST_F(ChildProcessTest, TellsItThoughWhoStartedUsMadeUsIgnoreTheEndOfChildren)
{
    std::signal(SIGCHLD, SIG_IGN);
    startAndWaitForItsEnd(u"exit 7"_s);
    EXPECT_EQ(iChild.end().code, 7);
}

TEST_F(ChildProcessTest, InventsNoStatusOfAChildThatOtherCodeWaitedFor)
{
    startAndWaitForItsEnd(u"exit 0"_s);
    while (waitpid(-1, nullptr, 0) > 0)
        ;
    EXPECT_EQ(iChild.end().how, How::Unknown);
}
