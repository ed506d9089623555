// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <stdexcept>

namespace leafcast {

/// An exception that callers tell apart by its name, as the model classes raise on malformed input.
class NamedException : public std::runtime_error {
public:
    NamedException(const QString& name, const QString& reason)
        : std::runtime_error((name + QStringLiteral(": ") + reason).toStdString())
        , iName(name)
        , iReason(reason)
    {
    }

    const QString& name() const { return iName; }
    const QString& reason() const { return iReason; }

private:
    QString iName;
    QString iReason;
};

} // namespace leafcast
