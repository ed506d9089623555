// SPDX-License-Identifier: MIT
#pragma once

#include "Stage.h"

namespace leafcast {

/// The files that the scenes are played with, made by tools/screenshots/take.
struct Material {
    QString magazine; // a PDF of sixteen pages
    QString locked; // the same with a password
    QString damaged; // something that calls itself a PDF
    QString books; // a folder of books to be
    QString photos; // a folder that holds something else
};

/// The first book, a selected property, changes that wait to be applied, a search in vain.
void playStart(Stage& stage);
/// The import sheet in its states; the magazine lies open in the end.
void playImport(Stage& stage, const Material& material);
/// The publish sheet in its states.
void playPublish(Stage& stage, const Material& material);
/// The template chooser, the way to a tablet, the about window, a menu.
void playOthers(Stage& stage);

} // namespace leafcast
