// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <mupdf/pdf.h>

namespace leafcast::service {

/// A rectangle in PDF page space: points (before UserUnit), origin bottom-left, y upwards.
struct Box {
    double left = 0;
    double bottom = 0;
    double right = 0;
    double top = 0;

    double width() const { return right - left; }
    double height() const { return top - bottom; }
    bool isEmpty() const { return !(width() > 0 && height() > 0); }
};

/// The value that the file most likely has: the shortest decimal that is this single-precision
/// number, as 595.276 and not 595.2760009765625.
double asWritten(float value);

/// A rectangle array, normalised; empty when it isn't one. Inside Library::guarded() only.
Box boxFromArray(fz_context* context, pdf_obj* array);

/// Where a page lies and how it is displayed. Values inherited from the page tree are resolved, the
/// crop box is clipped to the media box; a box without area falls back to the media box, that one
/// to 612 x 792 points.
struct PageGeometry {
    Box mediaBox;
    Box cropBox;
    int rotation = 0; // degrees clockwise, as in the file
    double userUnit = 1; // 1/72 inch

    /// Inside Library::guarded() only.
    static PageGeometry ofPage(fz_context* context, pdf_obj* page);

    /// 0, 90, 180 or 270; a rotation that is no multiple of 90 shows the page unrotated.
    int displayedRotation() const;
    /// In points as displayed: crop box, rotation and UserUnit applied.
    double displayedWidth() const;
    double displayedHeight() const;

    /// From PDF page space onto a picture of the displayed page of the given size, origin top-left,
    /// y downwards. A size of 1 x 1 gives fractions of the page.
    fz_matrix toPicture(double width, double height) const;

    /// The same from the page space of the PDF library, which pdf_run_page() starts from.
    fz_matrix fromLibraryToPicture(fz_matrix libraryPage, double width, double height) const;
};

} // namespace leafcast::service
