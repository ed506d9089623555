// SPDX-License-Identifier: MIT
#pragma once

#include "support/PDFBuilder.h"
#include "support/TestFiles.h"

#include <QJsonObject>
#include <QStringList>
#include <QTemporaryDir>
#include <signal.h>

namespace leafcast {

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
    /// The same with a Ctrl-C soon after its start.
    Outcome runInterrupted(const QStringList& arguments) const;

    QString writePDF(const QString& name, const PDFBuilder& builder) const;
    /// A PDF of so many pages, each with its number in large type.
    QString writeNumberedPDF(const QString& name, int pages) const;
    /// A plain JPEG.
    QString writePicture(const QString& name, int width, int height) const;

    QTemporaryDir iFolder;
};

} // namespace leafcast
