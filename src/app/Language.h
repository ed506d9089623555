// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace leafcast {

/// Shows the windows in the first of the languages that there is a catalogue for; English stands in
/// the code. Qt's own texts, on the buttons of its dialogs, follow where Qt's catalogues are
/// installed. The languages are BCP 47 names, the most wanted first, as QLocale::uiLanguages()
/// gives them. To be called once, before any text is read.
void speakFirstOf(const QStringList& languages);

} // namespace leafcast
