// SPDX-License-Identifier: MIT
#pragma once

#include <QPersistentModelIndex>
#include <QWidget>

namespace leafcast {

class FlashTemplateOutlineDelegate;
class FlashTmplColorCell;
class FlashTmplFileCell;

/// Opens the colour or file dialog of a property over the window; its signals take the place of
/// a modal session with a watcher of the panel, wxCPWCDelegate. A dialog that is cancelled changes
/// nothing; a file setting is emptied by clearFile, which ends a choice without a file.
class PropertyChooser : public QObject {
    Q_OBJECT

public:
    PropertyChooser(FlashTemplateOutlineDelegate& outline, QWidget& window);

    static bool canChoose(const QModelIndex& index);
    static bool canClearFile(const QModelIndex& index);
    /// Nothing for a property of another type, and for none.
    void choose(const QPersistentModelIndex& index);
    void clearFile(const QModelIndex& index);

private:
    void chooseColor(const QPersistentModelIndex& index);
    void chooseFile(const QPersistentModelIndex& index);

    FlashTemplateOutlineDelegate& iOutline;
    QWidget& iWindow;
};

} // namespace leafcast
