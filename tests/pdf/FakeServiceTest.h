// SPDX-License-Identifier: MIT
#pragma once

#include "pdf/PDFDocument.h"
#include "support/LogCapture.h"
#include "support/TestFiles.h"

#include <QTemporaryDir>
#include <sys/types.h>

namespace leafcast {

/// For tests of what happens when the PDF service misbehaves: a stand-in serves "documents" that
/// say how, see FakePDFService.cpp.
class FakeServiceTest : public testing::Test {
protected:
    /// So long that a test which runs into it is seen to hang.
    static constexpr int endless = 100000;

    FakeServiceTest();
    ~FakeServiceTest() override;

    static void useService(const QByteArray& program);

    PDFDocument::Source documentThat(const QByteArray& behaves, int pageSeconds = endless) const;
    QString at(const QString& name) const { return iFolder.filePath(name); }
    /// All files and folders in the folder of the test, hidden ones too, without the document.
    QStringList leftovers() const;

    /// Zombies too.
    static std::vector<pid_t> childProcesses();
    static qsizetype threadCount();

    QTemporaryDir iFolder;
    LogCapture iLog;

private:
    QByteArray iServiceBefore;
};

} // namespace leafcast
