// SPDX-License-Identifier: MIT
#pragma once

#include "publish/FlashBookOutput.h"

namespace leafcast {

/// Writes a book as a double-clickable package: a viewer application from the resources with the
/// book in its resource folder. An earlier package of that name is replaced whole.
class FlashBookOutputApp : public FlashBookOutput {
public:
    /// The package is FOLDER/NAME.app; an extension of the name is left out.
    FlashBookOutputApp(PageSource pageSource, Template flashTemplate, const QString& saveToFolder,
        const QString& fileName);

    void ouputTheBook() override;
    /// "index.html" in the package's resource folder, whatever the file name is.
    QString outputHTMLFileName() const override;
    /// Path of the package.
    QString outputFileName() const override;
    std::vector<Companion> companions() const override;

private:
    void copyViewer();
    QString contentsFolder() const;
};

} // namespace leafcast
