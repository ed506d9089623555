// SPDX-License-Identifier: MIT
#pragma once

#include "pdf/PDFDocument.h"
#include "support/LogCapture.h"
#include "support/TestFiles.h"

#include <QTemporaryDir>
#include <sys/types.h>
#include <unistd.h>

namespace leafcast {

/// For tests of what happens when the PDF service misbehaves: a stand-in serves "documents" that
/// say how, see fake_pdf_service.py.
class FakeServiceTest : public testing::Test {
protected:
    FakeServiceTest() { useService(FAKE_PDF_SERVICE); }
    ~FakeServiceTest() override { useService(iServiceBefore); }

    static void useService(const QByteArray& program) { qputenv("LEAFCAST_PDF_SERVICE", program); }

    /// Without a time so long that a test which runs into it is seen to hang.
    PDFDocument::Source documentThat(const QByteArray& behaves, int pageSeconds = 100000) const
    {
        const QString path = writeTestFile(at(QStringLiteral("document")), behaves);
        return { .path = path, .password = {}, .limits = { .pageSeconds = pageSeconds } };
    }

    QString at(const QString& name) const { return iFolder.filePath(name); }

    /// All files and folders in the folder of the test, hidden ones too, without the document.
    QStringList leftovers() const
    {
        const auto all = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
        QStringList names = QDir(iFolder.path()).entryList(all);
        names.removeOne(QStringLiteral("document"));
        return names;
    }

    /// Zombies too. The parent is the fourth field of /proc/PID/stat; the second, the name, is in
    /// brackets and may hold anything.
    static std::vector<pid_t> childProcesses()
    {
        std::vector<pid_t> children;
        for (const QString& pid : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
            const QByteArray status = readTestFile(QStringLiteral("/proc/%1/stat").arg(pid));
            const QByteArray parent = status.mid(status.lastIndexOf(')') + 2).split(' ').value(1);
            if (pid.toInt() > 0 && parent.toInt() == getpid())
                children.push_back(pid.toInt());
        }
        return children;
    }

    static qsizetype threadCount()
    {
        return QDir(QStringLiteral("/proc/self/task")).entryList(QDir::Dirs).size();
    }

    QTemporaryDir iFolder;
    LogCapture iLog;

private:
    QByteArray iServiceBefore = qgetenv("LEAFCAST_PDF_SERVICE");
};

} // namespace leafcast
