// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <optional>
#include <QByteArray>

namespace leafcast::service {

/// Lines from standard input, answers to standard output.
class MessageStream {
public:
    struct Line {
        QByteArray text;
        bool tooLong = false; // then the text is not kept
    };

    /// None at the end of the input.
    std::optional<Line> read();

    /// Adds the line end. The process ends when nobody reads any more.
    static void write(const QByteArray& message);

    static constexpr qsizetype LongestRequest = qsizetype{ 1 } << 20;
    static constexpr qsizetype LongestAnswer = qsizetype{ 64 } << 20;

private:
    bool fill();

    QByteArray iBuffer;
    bool iSkipping = false; // the rest of a line that is too long
};

} // namespace leafcast::service
