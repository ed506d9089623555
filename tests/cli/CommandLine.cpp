// SPDX-License-Identifier: MIT
#include "cli/CommandLine.h"

#include "base/FileDescriptor.h"

#include <fcntl.h>
#include <QImage>
#include <QJsonDocument>
#include <QProcess>
#include <QProcessEnvironment>
#include <QThread>
#include <sys/file.h>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    constexpr int patienceMilliseconds = 60000;
    constexpr int dotsPerMeterAt72Dpi = 2835;

    void prepare(QProcess& process, const QString& folder, const QStringList& variables)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const QString& variable : variables)
            environment.insert(variable.section(u'=', 0, 0), variable.section(u'=', 1));
        environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(folder);
    }

    /// Until the program has started one of the PDF service, which it does after it began to
    /// listen.
    void waitForWorkers(qint64 pid)
    {
        QFile children(u"/proc/%1/task/%1/children"_s.arg(pid));
        for (int tries = 0; tries < patienceMilliseconds / 10; ++tries) {
            if (children.open(QIODevice::ReadOnly) && !children.readAll().isEmpty())
                return;
            children.close();
            QThread::msleep(10);
        }
        ADD_FAILURE() << "no worker was started";
    }

    Outcome finish(QProcess& process)
    {
        EXPECT_TRUE(process.waitForFinished(patienceMilliseconds));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        return { process.exitCode(), process.readAllStandardOutput(),
            process.readAllStandardError() };
    }

} // namespace

QJsonObject Outcome::json() const
{
    return QJsonDocument::fromJson(output).object();
}

Outcome CommandLineTest::run(const QStringList& arguments, const QStringList& variables) const
{
    QProcess process;
    prepare(process, iFolder.path(), variables);
    process.start(program, arguments);
    return finish(process);
}

Outcome CommandLineTest::runRedirected(
    const QString& redirections, const QStringList& arguments) const
{
    QProcess process;
    prepare(process, iFolder.path(), {});
    const QString line = u"exec \"$0\" \"$@\" "_s + redirections;
    process.start(u"sh"_s, QStringList{ u"-c"_s, line, program } + arguments);
    return finish(process);
}

Outcome CommandLineTest::runSignalled(int signalNumber, const QStringList& command) const
{
    QProcess process;
    prepare(process, iFolder.path(), {});
    process.start(command.first(), command.sliced(1));
    EXPECT_TRUE(process.waitForStarted());
    waitForWorkers(process.processId());
    kill(static_cast<pid_t>(process.processId()), signalNumber);
    return finish(process);
}

Outcome CommandLineTest::runBesideAnother(const QString& folder, const QStringList& arguments) const
{
    QDir().mkpath(at(folder));
    FileDescriptor other(open(QFile::encodeName(at(folder)).constData(), O_RDONLY | O_CLOEXEC));
    EXPECT_EQ(flock(other.get(), LOCK_EX), 0);
    QProcess process;
    prepare(process, iFolder.path(), {});
    process.setReadChannel(QProcess::StandardError);
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForReadyRead(patienceMilliseconds));
    EXPECT_TRUE(QDir(at(folder)).isEmpty());
    other.close();
    return finish(process);
}

QString CommandLineTest::writePDF(const QString& name, const PDFBuilder& builder) const
{
    return writeTestFile(at(name), builder.build());
}

QString CommandLineTest::writeNumberedPDF(const QString& name, int pages) const
{
    PDFBuilder builder;
    for (int i = 1; i <= pages; ++i)
        builder.addPage({ .content = PDFBuilder::showText(QByteArray::number(i), 200, 400, 96) });
    return writePDF(name, builder);
}

QString CommandLineTest::writePicture(const QString& name, int width, int height) const
{
    QImage picture(width, height, QImage::Format_RGB32);
    picture.fill(Qt::darkGreen);
    picture.setDotsPerMeterX(dotsPerMeterAt72Dpi);
    picture.setDotsPerMeterY(dotsPerMeterAt72Dpi);
    QDir().mkpath(QFileInfo(at(name)).path());
    EXPECT_TRUE(picture.save(at(name)));
    return at(name);
}

} // namespace leafcast
