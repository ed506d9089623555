// SPDX-License-Identifier: MIT
#include "base/LogConfiguration.h"
#include "cli/Command.h"
#include "cli/Console.h"
#include "cli/Interrupt.h"

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
    program.footer(footer);
}

int perform(const Action& action)
{
    try {
        return status(action());
    } catch (const CommandFailure& failure) {
        Console::sayError(QString::fromUtf8(failure.what()));
        return status(failure.code());
    }
}

} // namespace

int main(int argc, char** argv)
{
    std::setlocale(LC_CTYPE, "");
    CLI::App program;
    describe(program);
    Action action;
    for (const auto& addCommand : { addPublishCommand, addInspectCommand, addTemplatesCommand,
             addStylesCommand, addSettingsCommand })
        addCommand(program, action);
    try {
        program.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return program.exit(error) == 0 ? 0 : status(ExitCode::WrongUsage);
    }
    const QCoreApplication application(argc, argv);
    Interrupt::listen();
    return perform(action);
}
