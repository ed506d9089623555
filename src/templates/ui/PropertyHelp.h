// SPDX-License-Identifier: MIT
#pragma once

#include <QGroupBox>

class QAction;
class QLabel;
class QTextEdit;

namespace leafcast {

class FlashTemplateProperty;

/// The help area below the property tree: title and description of the selected property, why its
/// value can't be used if it can't, and the button that resets it.
class PropertyHelp : public QGroupBox {
    Q_OBJECT

public:
    explicit PropertyHelp(QAction& resetAction, QWidget* parent = nullptr);

    void showProperty(const FlashTemplateProperty& property);
    void clear();

private:
    QTextEdit* iToolTip;
    QLabel* iProblem;
};

} // namespace leafcast
