// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QJsonObject>
#include <QString>

namespace leafcast::service {

/// Typed access to the fields of a request. Throws ServiceError (Request) when a field is missing,
/// is of another type, or lies outside its range.
class RequestFields {
public:
    explicit RequestFields(const QJsonObject& request)
        : iRequest(request)
    {
    }

    QString text(const char* name) const;
    QString textOrEmpty(const char* name) const;
    int integer(const char* name, int least, int greatest) const;
    double number(const char* name, double least, double greatest) const;

private:
    const QJsonObject& iRequest;
};

} // namespace leafcast::service
