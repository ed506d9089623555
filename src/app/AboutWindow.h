// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

namespace leafcast {

/// What the program is, its version, and the licences of what it is made with.
class AboutWindow : public QDialog {
    Q_OBJECT

public:
    explicit AboutWindow(QWidget* parent = nullptr);
};

} // namespace leafcast
