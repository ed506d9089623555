// SPDX-License-Identifier: MIT
#include "DesktopDriver.h"

#include <QGenericPlugin>

namespace leafcast {

class DriverPlugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "driver.json")

public:
    QObject* create(const QString& /*name*/, const QString& /*specification*/) override
    {
        return new DesktopDriver;
    }
};

} // namespace leafcast

#include "DriverPlugin.moc"
