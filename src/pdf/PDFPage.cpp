// SPDX-License-Identifier: MIT
#include "pdf/PDFPage.h"

#include <algorithm>

namespace leafcast {

namespace {

    /// Clockwise quarter turns, 0 to 3; none for an angle that is no multiple of 90 degrees.
    int quarterTurns(int degrees)
    {
        return degrees % 90 == 0 ? (degrees / 90 % 4 + 4) % 4 : 0;
    }

    struct Span {
        double from;
        double to;

        double length() const { return to - from; }
        Span reversed() const { return { 1 - to, 1 - from }; }
    };

    Span fractionOf(double start, double length, double boxStart, double boxLength)
    {
        if (boxLength <= 0)
            return { 0, 0 };
        const double from = (start - boxStart) / boxLength;
        return { std::clamp(from, 0.0, 1.0), std::clamp(from + length / boxLength, 0.0, 1.0) };
    }

    PageFraction fraction(const Span& across, const Span& down)
    {
        return { across.from, down.from, across.length(), down.length() };
    }

} // namespace

PDFPage::PDFPage(int index, const Boxes& boxes, int rotation, double userUnit, const QString& label)
    : iIndex(index)
    , iBoxes(boxes)
    , iRotation(rotation)
    , iUserUnit(userUnit)
    , iLabel(label)
{
}

const PDFRect& PDFPage::boundsForBox(PDFBox box) const
{
    return box == PDFBox::MediaBox ? iBoxes.mediaBox : iBoxes.cropBox;
}

double PDFPage::displayedWidth() const
{
    const bool onItsSide = quarterTurns(iRotation) % 2 != 0;
    return iUserUnit * (onItsSide ? iBoxes.cropBox.height : iBoxes.cropBox.width);
}

double PDFPage::displayedHeight() const
{
    const bool onItsSide = quarterTurns(iRotation) % 2 != 0;
    return iUserUnit * (onItsSide ? iBoxes.cropBox.width : iBoxes.cropBox.height);
}

PageFraction PDFPage::displayed(const PDFRect& rect) const
{
    const PDFRect& crop = iBoxes.cropBox;
    const Span right = fractionOf(rect.x, rect.width, crop.x, crop.width);
    const Span up = fractionOf(rect.y, rect.height, crop.y, crop.height);
    switch (quarterTurns(iRotation)) {
    case 1: // the page's left edge is on top
        return fraction(up, right);
    case 2:
        return fraction(right.reversed(), up);
    case 3: // its right edge is on top
        return fraction(up.reversed(), right.reversed());
    default:
        return fraction(right, up.reversed());
    }
}

} // namespace leafcast
