// SPDX-License-Identifier: MIT
#include "cli/Console.h"
#include "cli/LogOptions.h"
#include "cli/Program.h"

#include <clocale>
#include <QCoreApplication>

using namespace leafcast;

namespace {

ExitCode perform(const LogOptions& logOptions, const Action& action)
try {
    logOptions.configure();
    return action();
} catch (const CommandFailure& failure) {
    Console::sayError(QString::fromUtf8(failure.what()));
    return failure.code();
} catch (const std::exception& exception) {
    Console::sayError(QString::fromUtf8(exception.what()));
    return ExitCode::InputUnreadable;
}

} // namespace

int main(int argc, char** argv)
{
    Console::keepStreamNumbers();
    std::setlocale(LC_CTYPE, "");
    CLI::App program;
    describeProgram(program);
    LogOptions logOptions;
    logOptions.addTo(program);
    Action action;
    addCommands(program, action);
    if (const auto status = parseArguments(program, argc, argv))
        return *status;
    const QCoreApplication application(argc, argv);
    return static_cast<int>(perform(logOptions, action));
}
