// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QLatin1String>
#include <QString>
#include <stdexcept>

namespace leafcast::service {

/// Why a request failed; each has its word in the protocol.
enum class ErrorCode {
    Locked,
    Password,
    Unreadable,
    Missing,
    Empty,
    NoPage,
    Memory,
    Page,
    Write,
    Request
};

QLatin1String errorWord(ErrorCode code);

/// Ends the request that is being served; the worker lives on. The message is a clause for people,
/// without the file's name.
class ServiceError : public std::runtime_error {
public:
    ServiceError(ErrorCode code, const QString& message);

    ErrorCode code() const { return iCode; }
    QString message() const { return QString::fromUtf8(what()); }

private:
    ErrorCode iCode;
};

} // namespace leafcast::service
