// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace leafcast {

class FlashTemplateProperty;

/// What a typed text comes to for a property: the value to store, or why there is none.
struct PropertyValueCheck {
    QString value;
    QString problem; // a clause for people, such as "it must be a number"; empty when accepted

    bool isAccepted() const { return problem.isEmpty(); }
};

/// Checks by the property's type, more strictly than the settings files that templates bring along.
/// A switch takes the usual words, a colour also "#" in front, a file must exist and becomes an
/// absolute path; types without a rule take any text. Nothing is set.
PropertyValueCheck checkPropertyValue(const FlashTemplateProperty& property, const QString& typed);

} // namespace leafcast
