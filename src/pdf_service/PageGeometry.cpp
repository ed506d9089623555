// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/PageGeometry.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace leafcast::service {

namespace {

    constexpr Box LetterSize{ 0, 0, 612, 792 };

    struct Affine {
        double a, b, c, d, e, f;
    };

    Affine inverted(const fz_matrix& m)
    {
        const double determinant = static_cast<double>(m.a) * m.d - static_cast<double>(m.b) * m.c;
        const Affine linear{ m.d / determinant, -m.b / determinant, -m.c / determinant,
            m.a / determinant, 0, 0 };
        return { linear.a, linear.b, linear.c, linear.d, -(m.e * linear.a + m.f * linear.c),
            -(m.e * linear.b + m.f * linear.d) };
    }

    Affine concatenated(const Affine& one, const Affine& two)
    {
        return { one.a * two.a + one.b * two.c, one.a * two.b + one.b * two.d,
            one.c * two.a + one.d * two.c, one.c * two.b + one.d * two.d,
            one.e * two.a + one.f * two.c + two.e, one.e * two.b + one.f * two.d + two.f };
    }

    fz_matrix single(const Affine& m)
    {
        return { static_cast<float>(m.a), static_cast<float>(m.b), static_cast<float>(m.c),
            static_cast<float>(m.d), static_cast<float>(m.e), static_cast<float>(m.f) };
    }

    Box inheritedBox(fz_context* context, pdf_obj* page, pdf_obj* name)
    {
        return boxFromArray(context, pdf_dict_get_inheritable(context, page, name));
    }

    Box intersection(const Box& a, const Box& b)
    {
        return { std::max(a.left, b.left), std::max(a.bottom, b.bottom), std::min(a.right, b.right),
            std::min(a.top, b.top) };
    }

    // Turns the crop box clockwise onto a picture of the given size.
    Affine displayMatrix(const PageGeometry& page, double width, double height)
    {
        const Box& box = page.cropBox;
        const bool sideways = page.displayedRotation() % 180 != 0;
        const double x = (sideways ? height : width) / box.width();
        const double y = (sideways ? width : height) / box.height();
        switch (page.displayedRotation()) {
        case 90:
            return { 0, x, y, 0, -box.bottom * y, -box.left * x };
        case 180:
            return { -x, 0, 0, y, box.right * x, -box.bottom * y };
        case 270:
            return { 0, -x, -y, 0, box.top * y, box.right * x };
        default:
            return { x, 0, 0, -y, -box.left * x, box.top * y };
        }
    }

} // namespace

double asWritten(float value)
{
    char text[32];
    const auto end = std::to_chars(text, text + sizeof text, value).ptr;
    double result = 0;
    std::from_chars(text, end, result);
    return result;
}

Box boxFromArray(fz_context* context, pdf_obj* array)
{
    double values[4] = {};
    if (!pdf_is_array(context, array))
        return {};
    for (int i = 0; i < 4; ++i) {
        values[i] = asWritten(pdf_array_get_real(context, array, i));
        if (!std::isfinite(values[i]))
            return {};
    }
    return { std::min(values[0], values[2]), std::min(values[1], values[3]),
        std::max(values[0], values[2]), std::max(values[1], values[3]) };
}

PageGeometry PageGeometry::ofPage(fz_context* context, pdf_obj* page)
{
    PageGeometry result;
    result.mediaBox = inheritedBox(context, page, PDF_NAME(MediaBox));
    if (result.mediaBox.isEmpty())
        result.mediaBox = LetterSize;
    result.cropBox = intersection(inheritedBox(context, page, PDF_NAME(CropBox)), result.mediaBox);
    if (result.cropBox.isEmpty())
        result.cropBox = result.mediaBox;
    result.rotation
        = pdf_to_int(context, pdf_dict_get_inheritable(context, page, PDF_NAME(Rotate)));
    const float unit = pdf_dict_get_real(context, page, PDF_NAME(UserUnit));
    if (unit > 0 && std::isfinite(unit))
        result.userUnit = asWritten(unit);
    return result;
}

int PageGeometry::displayedRotation() const
{
    return rotation % 90 == 0 ? (rotation % 360 + 360) % 360 : 0;
}

double PageGeometry::displayedWidth() const
{
    return userUnit * (displayedRotation() % 180 == 0 ? cropBox.width() : cropBox.height());
}

double PageGeometry::displayedHeight() const
{
    return userUnit * (displayedRotation() % 180 == 0 ? cropBox.height() : cropBox.width());
}

fz_matrix PageGeometry::toPicture(double width, double height) const
{
    return single(displayMatrix(*this, width, height));
}

fz_matrix PageGeometry::fromLibraryToPicture(
    fz_matrix libraryPage, double width, double height) const
{
    return single(concatenated(inverted(libraryPage), displayMatrix(*this, width, height)));
}

} // namespace leafcast::service
