// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>

namespace leafcast {

/// What people read that comes from below the windows: Sentences::tr("…") is in the language that
/// the application has loaded, and English on the command line, which loads none.
class Sentences {
    Q_DECLARE_TR_FUNCTIONS(leafcast::Sentences)
};

} // namespace leafcast
