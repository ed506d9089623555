// SPDX-License-Identifier: MIT
#include "cli/OutputPlace.h"

#include "base/FileSteps.h"
#include "cli/ExitCode.h"

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    void refuseFor(const QString& problem, const QString& advice = {})
    {
        if (!problem.isEmpty())
            throw CommandFailure(ExitCode::OutputNotWritable, problem + advice);
    }

} // namespace

OutputPlace::OutputPlace(
    const QString& folder, Kind kind, const QString& packageName, Packing packing)
    : iPlace(folder, kind, packageName)
{
    if (folder.isEmpty())
        throw CommandFailure(ExitCode::WrongUsage, u"the output folder has no name"_s);
    if (packing == Packing::Zip)
        iArchive.emplace(
            (kind == Kind::Folder ? iPlace.folder() : iPlace.folder() + u'/' + packageName)
            + u".zip"_s);
}

void OutputPlace::requireReplaceable() const
{
    refuseFor(iPlace.replacementProblem(),
        iPlace.kind() == Kind::Folder ? u"; use --force to write there all the same"_s
                                      : u"; use --force to replace it"_s);
    if (iArchive)
        iArchive->requireReplaceable();
}

void OutputPlace::requireWritable() const
{
    refuseFor(iPlace.writingProblem());
    if (iArchive)
        iArchive->requireWritable();
}

void OutputPlace::requireNameFits(const QString& name) const
{
    refuseFor(iPlace.nameLengthProblem(name), u"; give a shorter --name"_s);
}

void OutputPlace::requireOutside(const QStringList& inputs) const
{
    QStringList replaced = iPlace.replacedPaths();
    if (iArchive)
        replaced.append(iArchive->path());
    refuseFor(BookPlace::inputProblem(inputs, replaced));
}

void OutputPlace::makeFolder() const
{
    if (!FileSteps::makeFolders(folder()))
        refuseFor(
            u"the output folder %1 can't be made; the log (--verbose) tells why"_s.arg(folder()));
}

} // namespace leafcast
