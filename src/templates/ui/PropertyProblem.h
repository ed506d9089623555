// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace leafcast {

class FlashTemplateProperty;

/// Why a property's value would not do in a book, whoever set it: a clause such as "there is no
/// such file". Empty for a value that does.
QString propertyProblem(const FlashTemplateProperty& property);

} // namespace leafcast
