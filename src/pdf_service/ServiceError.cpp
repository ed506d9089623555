// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/ServiceError.h"

namespace leafcast::service {

QLatin1String errorWord(ErrorCode code)
{
    switch (code) {
    case ErrorCode::Locked:
        return QLatin1String("locked");
    case ErrorCode::Password:
        return QLatin1String("password");
    case ErrorCode::Unreadable:
        return QLatin1String("unreadable");
    case ErrorCode::Missing:
        return QLatin1String("missing");
    case ErrorCode::Empty:
        return QLatin1String("empty");
    case ErrorCode::NoPage:
        return QLatin1String("no-page");
    case ErrorCode::Memory:
        return QLatin1String("memory");
    case ErrorCode::Page:
        return QLatin1String("page");
    case ErrorCode::Write:
        return QLatin1String("write");
    case ErrorCode::Request:
        break;
    }
    return QLatin1String("request");
}

ServiceError::ServiceError(ErrorCode code, const QString& message)
    : std::runtime_error(message.toStdString())
    , iCode(code)
{
}

} // namespace leafcast::service
