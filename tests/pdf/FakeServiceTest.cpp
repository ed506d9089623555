// SPDX-License-Identifier: MIT
#include "FakeServiceTest.h"

#include <QDir>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    constexpr const char* serviceVariable = "LEAFCAST_PDF_SERVICE";

    /// The fourth field of /proc/PID/stat; the second, the name, is in brackets and may hold
    /// anything.
    pid_t parentOf(pid_t pid)
    {
        const QByteArray status = readTestFile(u"/proc/%1/stat"_s.arg(pid));
        return status.mid(status.lastIndexOf(')') + 2).split(' ').value(1).toInt();
    }

} // namespace

FakeServiceTest::FakeServiceTest()
    : iServiceBefore(qgetenv(serviceVariable))
{
    useService(FAKE_PDF_SERVICE);
}

FakeServiceTest::~FakeServiceTest()
{
    qputenv(serviceVariable, iServiceBefore);
}

void FakeServiceTest::useService(const QByteArray& program)
{
    qputenv(serviceVariable, program);
}

PDFDocument::Source FakeServiceTest::documentThat(const QByteArray& behaves, int pageSeconds) const
{
    return { .path = writeTestFile(at(u"document"_s), behaves),
        .password = {},
        .limits = { .pageSeconds = pageSeconds } };
}

QStringList FakeServiceTest::leftovers() const
{
    QStringList names
        = QDir(iFolder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    names.removeOne(u"document"_s);
    return names;
}

std::vector<pid_t> FakeServiceTest::childProcesses()
{
    std::vector<pid_t> children;
    for (const QString& name : QDir(u"/proc"_s).entryList(QDir::Dirs))
        if (const pid_t pid = name.toInt(); pid > 0 && parentOf(pid) == getpid())
            children.push_back(pid);
    return children;
}

qsizetype FakeServiceTest::threadCount()
{
    return QDir(u"/proc/self/task"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size();
}

} // namespace leafcast
