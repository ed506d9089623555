// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

namespace leafcast {

/// Keeps a sheet as high as what it shows, when lines of it come and go; how wide it is is the
/// user's choice. It belongs to the sheet.
class SheetFit : public QObject {
    Q_OBJECT

public:
    explicit SheetFit(QDialog& sheet);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QDialog& iSheet;
};

} // namespace leafcast
