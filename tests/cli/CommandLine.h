// SPDX-License-Identifier: MIT
#pragma once

#include "support/PDFBuilder.h"
#include "support/TestFiles.h"

#include <QJsonObject>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>
#include <signal.h>

namespace leafcast {

inline const QString program = QStringLiteral(LEAFCAST_PROGRAM);

struct Outcome {
    int status = -1;
    QByteArray output;
    QByteArray errors;

    QJsonObject json() const;
};

/// Tests that run the program as a user would, in a folder of their own.
class CommandLineTest : public testing::Test {
protected:
    QString at(const QString& name) const { return iFolder.path() + u'/' + name; }

    /// Runs `leafcast ARGUMENTS` in the test's folder, with further variables such as "NAME=value".
    Outcome run(const QStringList& arguments, const QStringList& variables = {}) const;
    /// The arguments in one line; none of them is empty.
    Outcome run(const QByteArray& arguments, const QStringList& variables = {}) const
    {
        return run(QProcess::splitCommand(QString::fromUtf8(arguments)), variables);
    }
    /// The same through a shell, with redirections such as "> /dev/full".
    Outcome runRedirected(const QString& redirections, const QStringList& arguments) const;
    /// A whole command that gets a signal when it has begun to work.
    Outcome runSignalled(int signalNumber, const QStringList& command) const;
    /// With another program writing into the folder, until this one waits for it.
    Outcome runBesideAnother(const QString& folder, const QStringList& arguments) const;

    bool exists(const char* name) const { return QFileInfo::exists(at(QString::fromUtf8(name))); }
    QByteArray content(const char* name) const { return readTestFile(at(QString::fromUtf8(name))); }
    QString writePDF(const QString& name, const PDFBuilder& builder) const;
    /// A PDF of so many pages, each with its number in large type.
    QString writeNumberedPDF(const QString& name, int pages) const;
    /// A plain JPEG.
    QString writePicture(const QString& name, int width, int height) const;

    QTemporaryDir iFolder;
};

} // namespace leafcast
