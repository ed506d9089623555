// SPDX-License-Identifier: MIT
#include "pages/ImageHeader.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <QFile>
#include <QImageReader>
#include <QtEndian>

namespace leafcast::ImageHeader {

namespace {

    constexpr double pointsPerInch = 72;
    constexpr double centimetresPerInch = 2.54;
    constexpr double metresPerInch = 0.0254;

    struct Density { // dots per inch
        double x = pointsPerInch;
        double y = pointsPerInch;
    };

    template <typename Integer> Integer bigEndianAt(const QByteArray& bytes, qsizetype offset)
    {
        return qFromBigEndian<Integer>(bytes.constData() + offset);
    }

    double usable(double density)
    {
        return density > 0 ? density : pointsPerInch;
    }

    /// JFIF's segment stands right behind the start of the image.
    Density densityOfJPEG(const QByteArray& head)
    {
        constexpr int dotsPerInch = 1;
        constexpr int dotsPerCentimetre = 2;
        if (head.size() < 18 || head.sliced(6, 5) != QByteArray("JFIF", 5))
            return {};
        const auto unit = bigEndianAt<quint8>(head, 13);
        if (unit != dotsPerInch && unit != dotsPerCentimetre)
            return {};
        const double factor = unit == dotsPerCentimetre ? centimetresPerInch : 1;
        return { usable(bigEndianAt<quint16>(head, 14) * factor),
            usable(bigEndianAt<quint16>(head, 16) * factor) };
    }

    /// PNG counts whole pixels a metre, which no whole number of dpi is: the nearest is meant.
    double fromPixelsPerMetre(quint32 pixels)
    {
        const double exact = pixels * metresPerInch;
        const double whole = std::round(exact);
        return usable(std::lround(whole / metresPerInch) == qint64(pixels) ? whole : exact);
    }

    Density densityOfPNG(QFile& file)
    {
        constexpr int signatureSize = 8;
        constexpr int checksumSize = 4;
        file.seek(signatureSize);
        for (;;) {
            const QByteArray head = file.read(8);
            const QByteArray type = head.sliced(qMin<qsizetype>(4, head.size()));
            if (head.size() < 8 || type == "IDAT" || type == "IEND")
                return {};
            const QByteArray content = type == "pHYs" ? file.read(9) : QByteArray();
            if (content.size() == 9)
                return content.at(8) == 1
                    ? Density{ fromPixelsPerMetre(bigEndianAt<quint32>(content, 0)),
                          fromPixelsPerMetre(bigEndianAt<quint32>(content, 4)) }
                    : Density();
            if (!file.seek(file.pos() + bigEndianAt<quint32>(head, 0) + checksumSize))
                return {};
        }
    }

    int wholePoints(int pixels, double density)
    {
        constexpr double most = std::numeric_limits<int>::max();
        return static_cast<int>(std::min(pixels * pointsPerInch / density, most));
    }

    Density densityOf(const QString& path)
    {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return {};
        const QByteArray head = file.read(18);
        if (head.startsWith("\xFF\xD8\xFF\xE0"))
            return densityOfJPEG(head);
        if (head.startsWith("\x89PNG\r\n\x1A\n"))
            return densityOfPNG(file);
        return {};
    }

} // namespace

QSize sizeInPixels(const QString& path)
{
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    if (!size.isValid())
        return { 0, 0 };
    return reader.transformation() & QImageIOHandler::TransformationRotate90 ? size.transposed()
                                                                             : size;
}

QSize sizeInPoints(const QString& path)
{
    const QSize pixels = sizeInPixels(path);
    const Density density = densityOf(path);
    return { wholePoints(pixels.width(), density.x), wholePoints(pixels.height(), density.y) };
}

} // namespace leafcast::ImageHeader
