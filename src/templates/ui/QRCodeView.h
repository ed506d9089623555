// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <vector>

namespace leafcast {

/// The modules of a text's QR code, row by row; true is dark. Empty when the text is too long.
std::vector<std::vector<bool>> qrModules(const QString& text);

/// A QR code, black on white with its quiet zone whatever the palette: cameras need it so.
class QRCodeView : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    void setText(const QString& text);
    QSize sizeHint() const override { return { 200, 200 }; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::vector<std::vector<bool>> iModules;
};

} // namespace leafcast
