// SPDX-License-Identifier: MIT
#include "cli/Command.h"
#include "cli/Console.h"
#include "cli/LogOptions.h"

#include <clocale>
#include <QCoreApplication>

using namespace leafcast;

namespace {

constexpr const char* footer = R"(Exit status:
  0  complete             3  input unreadable
  1  something missing    4  output not writable
  2  wrong usage          5  password needed or wrong    130  interrupted)";

int status(ExitCode code)
{
    return static_cast<int>(code);
}

void describe(CLI::App& program)
{
    program.name("leafcast");
    program.description("Turns a PDF into a page-turning book that any browser opens.");
    program.set_version_flag("--version", "leafcast " LEAFCAST_VERSION);
    program.require_subcommand(1);
    program.fallthrough();
    program.footer(footer);
}

int perform(const Action& action)
try {
    return status(action());
} catch (const CommandFailure& failure) {
    Console::sayError(QString::fromUtf8(failure.what()));
    return status(failure.code());
} catch (const std::exception& exception) {
    Console::sayError(QString::fromUtf8(exception.what()));
    return status(ExitCode::InputUnreadable);
}

} // namespace

int main(int argc, char** argv)
{
    std::setlocale(LC_CTYPE, "");
    CLI::App program;
    describe(program);
    LogOptions logOptions;
    logOptions.addTo(program);
    Action action;
    for (const auto& addCommand : { addPublishCommand, addInspectCommand, addTemplatesCommand,
             addStylesCommand, addSettingsCommand })
        addCommand(program, action);
    try {
        program.parse(protectedArguments(argc, argv));
    } catch (const CLI::ParseError& error) {
        return program.exit(error) == 0 ? 0 : status(ExitCode::WrongUsage);
    }
    const QCoreApplication application(argc, argv);
    logOptions.configure();
    return perform(action);
}
