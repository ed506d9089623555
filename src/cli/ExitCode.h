// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <QString>
#include <stdexcept>

namespace leafcast {

/// What the program tells its caller.
enum class ExitCode {
    Complete = 0,
    PagesMissing = 1, // the book is written, but something in it is missing
    WrongUsage = 2,
    InputUnreadable = 3,
    OutputNotWritable = 4,
    PasswordNeeded = 5, // or the one given is wrong
    Interrupted = 130,
};

struct ExitCodeText {
    ExitCode code;
    const char* text;
};

/// The help's and the manual page's words for them.
inline constexpr std::array<ExitCodeText, 7> exitCodeTexts{ { { ExitCode::Complete, "complete" },
    { ExitCode::PagesMissing, "something missing" }, { ExitCode::WrongUsage, "wrong usage" },
    { ExitCode::InputUnreadable, "input unreadable" },
    { ExitCode::OutputNotWritable, "output not writable" },
    { ExitCode::PasswordNeeded, "password needed or wrong" },
    { ExitCode::Interrupted, "interrupted" } } };

/// Ends a command: one sentence for people, and the exit code.
class CommandFailure : public std::runtime_error {
public:
    CommandFailure(ExitCode code, const QString& sentence)
        : std::runtime_error(sentence.toStdString())
        , iCode(code)
    {
    }

    ExitCode code() const { return iCode; }

private:
    ExitCode iCode;
};

} // namespace leafcast
