// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/RequestFields.h"

#include "pdf_service/ServiceError.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace leafcast::service {

namespace {

    [[noreturn]] void complain(const char* name, QLatin1String what)
    {
        throw ServiceError(
            ErrorCode::Request, u"the field \"%1\" %2"_s.arg(QLatin1String(name), what));
    }

} // namespace

QString RequestFields::text(const char* name) const
{
    const QJsonValue value = iRequest.value(QLatin1String(name));
    if (!value.isString() || value.toString().contains(QChar(0)))
        complain(name, "must be a text"_L1);
    return value.toString();
}

QString RequestFields::textOrEmpty(const char* name) const
{
    return iRequest.contains(QLatin1String(name)) ? text(name) : QString();
}

int RequestFields::integer(const char* name, int least, int greatest) const
{
    const double value = number(name, least, greatest);
    if (value != std::floor(value))
        complain(name, "must be an integer"_L1);
    return static_cast<int>(value);
}

double RequestFields::number(const char* name, double least, double greatest) const
{
    const QJsonValue value = iRequest.value(QLatin1String(name));
    if (!value.isDouble())
        complain(name, "must be a number"_L1);
    if (!(value.toDouble() >= least && value.toDouble() <= greatest))
        complain(name, "is out of range"_L1);
    return value.toDouble();
}

} // namespace leafcast::service
