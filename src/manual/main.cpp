// SPDX-License-Identifier: MIT
// Writes the manual pages and the completions of the shells: leafcast-manual SOURCE_FOLDER
// OUT_FOLDER
#include "manual/Completions.h"
#include "manual/ManualPage.h"
#include "manual/Programs.h"
#include "manual/Skeleton.h"

#include <cstdio>
#include <QDir>
#include <QSaveFile>

using namespace Qt::StringLiterals;
using namespace leafcast;

namespace {

struct Folders {
    QString sources;
    QString results;

    QString completions() const { return sources + u"/completions"_s; }
};

void write(const QString& path, const QString& text)
{
    QDir().mkpath(QFileInfo(path).path());
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0 || !file.commit())
        throw std::runtime_error(
            u"%1 can't be written: %2"_s.arg(path, file.errorString()).toStdString());
}

void writeManualPage(const CommandDescription& program, const Folders& folders)
{
    Skeleton further(u"%1/man/%2.roff"_s.arg(folders.sources, program.line));
    further.fill(u"EXIT_STATUS"_s, exitStatusItems());
    write(u"%1/%2.1"_s.arg(folders.results, program.line), manualPage(program, further.text()));
}

void writeCompletions(const CommandDescription& program, const Folders& folders)
{
    const QString name = program.line;
    const QString skeletons = folders.completions();
    write(u"%1/bash/%2"_s.arg(folders.results, name), bashCompletion(program, skeletons));
    write(u"%1/zsh/_%2"_s.arg(folders.results, name), zshCompletion(program, skeletons));
    write(u"%1/fish/%2.fish"_s.arg(folders.results, name), fishCompletion(program, skeletons));
}

void writeEverything(const Folders& folders)
{
    std::vector<CommandDescription> programs{ commandLineProgram() };
#ifdef LEAFCAST_WINDOWS
    programs.push_back(desktopApplication());
#endif
    for (const CommandDescription& program : programs) {
        writeManualPage(program, folders);
        writeCompletions(program, folders);
    }
    // It lies in books, not among the commands that a shell completes.
    writeManualPage(previewServer(), folders);
}

} // namespace

int main(int argc, char** argv)
try {
    if (argc != 3)
        throw std::runtime_error("usage: leafcast-manual SOURCE_FOLDER OUT_FOLDER");
    writeEverything({ QFile::decodeName(argv[1]), QFile::decodeName(argv[2]) });
    return 0;
} catch (const std::exception& problem) {
    std::fprintf(stderr, "leafcast-manual: %s\n", problem.what());
    return 1;
}
