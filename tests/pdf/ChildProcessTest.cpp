// SPDX-License-Identifier: MIT
#include "pdf/ChildProcess.h"

#include <csignal>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace leafcast;

TEST(ChildProcess, EndsAsUsualWhateverFilesAndSignalsWeWereStartedWith)
{
    std::signal(SIGCHLD, SIG_IGN);
    const FileDescriptor inherited(dup(STDERR_FILENO));
    ChildProcess child;
    const FileDescriptor socket = child.start(
        u"/bin/sh"_s, { u"-c"_s, u"test -e /dev/fd/%1 || exit 7"_s.arg(inherited.get()) });
    char byte = 0;
    EXPECT_EQ(read(socket.get(), &byte, 1), 0) << child.error().toStdString();
    EXPECT_EQ(child.end().code, 7);
    std::signal(SIGCHLD, SIG_DFL);
}
