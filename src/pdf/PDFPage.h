// SPDX-License-Identifier: MIT
#pragma once

#include "pdf/PDFGeometry.h"

#include <QString>

namespace leafcast {

enum class PDFBox { MediaBox, CropBox };

/// One page's geometry and label: a value. What is on the page is asked of its PDFDocument.
class PDFPage {
public:
    struct Boxes {
        PDFRect mediaBox;
        PDFRect cropBox;
    };

    PDFPage(int index, const Boxes& boxes, int rotation, double userUnit, const QString& label);

    int index() const { return iIndex; } // from 0
    const PDFRect& boundsForBox(PDFBox box) const;
    int rotation() const { return iRotation; } // degrees clockwise, as in the file
    const QString& label() const { return iLabel; } // empty when the document has no labels

    /// Size in points as displayed: crop box, rotation and user unit applied.
    double displayedWidth() const;
    double displayedHeight() const;

    /// Maps PDF page space onto the displayed page; clipped to it.
    PageFraction displayed(const PDFRect& rect) const;

private:
    int iIndex;
    Boxes iBoxes;
    int iRotation;
    double iUserUnit;
    QString iLabel;
};

} // namespace leafcast
