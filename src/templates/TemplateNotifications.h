// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace leafcast {

/// Posted by the property editor after each change of a value. Its object is the property.
inline const QString FlashTmplProValueChangedNotification
    = QStringLiteral("FlashTmplProValueChangedNotification");

/// Posted by the property editor when another property is selected. Its object is the editor's
/// FlashTemplateOutlineDelegate, as a QObject*.
inline const QString UpdateFlashTmplProTipNotification
    = QStringLiteral("UpdateFlashTmplProTipNotification");

/// The key of a notification's object in its userInfo: a pointer, good while the observer runs.
inline const QString notificationObject = QStringLiteral("object");

} // namespace leafcast
