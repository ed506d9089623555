// SPDX-License-Identifier: MIT
#include "base/UserDefaults.h"
#include "FuzzTarget.h"

#include <QDir>

using namespace leafcast;
using namespace Qt::StringLiterals;

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString file = fuzz::fileWith(fuzz::bytesOf(data, size), u"defaults.json"_s);
    {
        UserDefaults defaults(file);
        defaults.setObject(u"fuzz"_s, 7);
        defaults.synchronize();
    }
    fuzz::require(UserDefaults(file).objectForKey(u"fuzz"_s) == QJsonValue(7),
        "a value is kept whatever the file held before");
    // Damaged files are set aside under names of their own.
    QDir folder(fuzz::folder());
    for (const QString& name : folder.entryList(QDir::Files))
        folder.remove(name);
    return 0;
}
