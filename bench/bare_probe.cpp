// SPDX-License-Identifier: AGPL-3.0-or-later
// Draws and encodes pages with the two libraries and nothing around them: the floor under the time
// of an import. Usage: bare_probe FILE SCALE QUALITY, with one line a page on standard input: page
// index, components (1 or 3), horizontal sampling of luma (1 or 2). Prints processor seconds.

#include "pdf_service/LibraryJPEG.h"

#include <mupdf/fitz.h>

#include <ctime>
#include <iostream>

namespace {

double processorSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return double(now.tv_sec) + double(now.tv_nsec) * 1e-9;
}

struct PageOrder {
    int index = 0;
    int components = 1;
    int sampling = 1;
};

fz_pixmap* draw(fz_context* context, fz_document* document, const PageOrder& order, float scale)
{
    fz_page* page = fz_load_page(context, document, order.index);
    fz_colorspace* colours
        = order.components == 1 ? fz_device_gray(context) : fz_device_rgb(context);
    fz_pixmap* pixmap = fz_new_pixmap_from_page(context, page, fz_scale(scale, scale), colours, 0);
    fz_drop_page(context, page);
    return pixmap;
}

int measure(fz_context* context, const char* path, float scale, int quality)
{
    const double start = processorSeconds();
    fz_register_document_handlers(context);
    fz_document* document = fz_open_document(context, path);
    double drawing = 0;
    double encoding = 0;
    size_t bytes = 0;
    for (PageOrder order; std::cin >> order.index >> order.components >> order.sampling;) {
        const double before = processorSeconds();
        fz_pixmap* pixmap = draw(context, document, order, scale);
        const double drawn = processorSeconds();
        const leafcast::RawPicture picture{ fz_pixmap_samples(context, pixmap),
            fz_pixmap_width(context, pixmap), fz_pixmap_height(context, pixmap),
            fz_pixmap_components(context, pixmap) };
        bytes += encodedByTheLibrary(picture, quality, order.sampling).size();
        fz_drop_pixmap(context, pixmap);
        drawing += drawn - before;
        encoding += processorSeconds() - drawn;
    }
    fz_drop_document(context, document);
    std::printf("{\"drawing\": %.4f, \"encoding\": %.4f, \"total\": %.4f, \"bytes\": %zu}\n",
        drawing, encoding, processorSeconds() - start, bytes);
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 4) {
        std::fputs("usage: bare_probe FILE SCALE QUALITY\n", stderr);
        return EXIT_FAILURE;
    }
    // An error ends the program: the documents of the benchmark have none.
    fz_context* context = fz_new_context(nullptr, nullptr, 64 << 20);
    const int status = measure(context, argv[1], float(std::atof(argv[2])), std::atoi(argv[3]));
    fz_drop_context(context);
    return status;
}
