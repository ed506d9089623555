// SPDX-License-Identifier: MIT
#include "manual/Programs.h"

#include "cli/LogOptions.h"
#include "cli/Program.h"
#include "preview_server/Options.h"

#ifdef LEAFCAST_WINDOWS
#include "app/CommandLine.h"
#endif

using namespace Qt::StringLiterals;

namespace leafcast {

CommandDescription commandLineProgram()
{
    CLI::App program;
    describeProgram(program);
    LogOptions logOptions;
    logOptions.addTo(program);
    Action action;
    addCommands(program, action);
    return describe(program);
}

CommandDescription previewServer()
{
    const std::string_view purpose = preview::purpose();
    CommandDescription program{ u"iPadPreview"_s,
        QString::fromUtf8(purpose.data(), static_cast<qsizetype>(purpose.size())).simplified(), {},
        {}, {}, {} };
    for (const preview::OptionText& option : preview::optionTexts()) {
        const QString text = QString::fromUtf8(option.text);
        program.options.push_back({ { u"--"_s + QString::fromUtf8(option.name) },
            QString::fromUtf8(option.value), {}, {}, text.at(0).toUpper() + text.mid(1) });
    }
    return program;
}

#ifdef LEAFCAST_WINDOWS
CommandDescription desktopApplication()
{
    return describe(CommandLine().parser());
}
#endif

} // namespace leafcast
