// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>
#include <QString>

namespace leafcast {

/// What came of one request to the PDF service.
struct PDFServiceAnswer {
    enum class Outcome {
        Answered,
        Refused, // an error answer; the worker is well
        NotStarted,
        Died, // the worker, or what it said made no sense
        TimedOut,
        Stopped // by us
    };

    Outcome outcome = Outcome::Stopped;
    QJsonObject fields{}; // of an answer
    QString error{}; // of a refusal: the protocol's word for it
    QString problem{}; // why there is no answer: a clause for people

    bool isAnswered() const { return outcome == Outcome::Answered; }
};

} // namespace leafcast
