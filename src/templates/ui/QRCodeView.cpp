// SPDX-License-Identifier: MIT
#include "templates/ui/QRCodeView.h"

#include <array>
#include <QPainter>
#include <qrcodegen/qrcodegen.h>

namespace leafcast {

namespace {
    constexpr int quietModules = 4; // that a reader may expect around a code
}

std::vector<std::vector<bool>> qrModules(const QString& text)
{
    std::array<uint8_t, qrcodegen_BUFFER_LEN_MAX> code{};
    auto work = code;
    if (!qrcodegen_encodeText(text.toUtf8().constData(), work.data(), code.data(),
            qrcodegen_Ecc_MEDIUM, qrcodegen_VERSION_MIN, qrcodegen_VERSION_MAX, qrcodegen_Mask_AUTO,
            true))
        return {};
    std::vector<std::vector<bool>> modules;
    for (int y = 0; y < qrcodegen_getSize(code.data()); ++y) {
        std::vector<bool>& row = modules.emplace_back();
        for (int x = 0; x < qrcodegen_getSize(code.data()); ++x)
            row.push_back(qrcodegen_getModule(code.data(), x, y));
    }
    return modules;
}

void QRCodeView::setText(const QString& text)
{
    iModules = text.isEmpty() ? std::vector<std::vector<bool>>() : qrModules(text);
    setAccessibleName(tr("QR code of %1").arg(text));
    update();
}

void QRCodeView::paintEvent(QPaintEvent*)
{
    if (iModules.empty())
        return;
    QPainter painter(this);
    const int across = static_cast<int>(iModules.size()) + 2 * quietModules;
    // Whole pixels of the screen, or the edges of the modules are grey.
    const qreal ratio = devicePixelRatioF();
    const int pixels = static_cast<int>(std::min(width(), height()) * ratio) / across;
    painter.scale(1 / ratio, 1 / ratio);
    painter.translate(static_cast<int>((width() * ratio - pixels * across) / 2),
        static_cast<int>((height() * ratio - pixels * across) / 2));
    painter.fillRect(0, 0, pixels * across, pixels * across, Qt::white);
    for (size_t y = 0; y < iModules.size(); ++y)
        for (size_t x = 0; x < iModules.size(); ++x)
            if (iModules[y][x])
                painter.fillRect((static_cast<int>(x) + quietModules) * pixels,
                    (static_cast<int>(y) + quietModules) * pixels, pixels, pixels, Qt::black);
}

} // namespace leafcast
