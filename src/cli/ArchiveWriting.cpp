// SPDX-License-Identifier: MIT
#include "cli/ArchiveWriting.h"

#include "cli/ExitCode.h"
#include "cli/Interrupt.h"
#include "cli/WatchedWork.h"
#include "publish/BookArchive.h"
#include "publish/BookContent.h"

#include <atomic>
#include <QElapsedTimer>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    /// False when the user interrupted.
    bool pack(BookArchive& archive, const QString& path, const PublishOptions& options)
    {
        bool packed = false;
        std::atomic<int> filesDone = 0;
        std::atomic<int> filesInAll = 0;
        archive.setProgress([&](int done, int total) {
            filesDone = done;
            filesInAll = total;
        });
        ProgressBar bar(u"files packed"_s, options.progressVisibility());
        WatchedWork{
            .work = [&] { packed = archive.writeTo(path); },
            .showProgress =
                [&] {
                    if (filesInAll > 0)
                        bar.show(filesDone, filesInAll);
                },
            .cancel = [&] { archive.stop(); }
        }.run();
        return packed;
    }

} // namespace

void writeArchive(const ArchivePlace& place, const FlashBookOutput& writer, const BookParts& parts,
    PublishReport& report)
try {
    QElapsedTimer clock;
    clock.start();
    BookArchive archive(report.output);
    const BookContent content(writer);
    // A package is made new each time; in a folder other things may lie beside the book's.
    if (!parts.options.app)
        archive.setBelongs([&](const QString& path) { return content.contains(path); });
    if (!pack(archive, place.path(), parts.options))
        Interrupt::endIfRequested(
            u"%1 is written, but not its archive %2"_s.arg(report.output, place.path()));
    report.archive = { place.path(), QFileInfo(place.path()).size(),
        static_cast<double>(clock.elapsed()) / 1000 };
} catch (const ArchiveFailure& failure) {
    throw CommandFailure(ExitCode::OutputNotWritable,
        u"%1 is written, but not its archive %2: %3"_s.arg(
            report.output, place.path(), QString::fromUtf8(failure.what())));
}

} // namespace leafcast
