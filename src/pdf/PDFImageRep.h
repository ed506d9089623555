// SPDX-License-Identifier: MIT
#pragma once

#include "pdf/PDFDocument.h"

#include <memory>
#include <QString>
#include <vector>

namespace leafcast {

/// Encoder settings of one page picture, see JPEGQuality.
struct JPEGSettings {
    int quality = 30; // libjpeg's scale, 1 to 100
    bool fullChroma = false; // 4:4:4; else 4:2:0 unless the page has fine coloured detail
};

/// Encoder settings of a compression factor, 0.0 (strongest) to 1.0 (best).
JPEGSettings jpegSettings(double compressionFactor);

struct RenderedPage {
    bool written = false;
    QString problem{}; // why not, a clause for people
    int width = 0; // pixels
    int height = 0;
    qint64 bytes = 0;
    bool reduced = false; // drawn smaller than asked: its bitmap would have passed the limit
    bool incomplete = false; // something on the page could not be drawn and was left out
};

/// Draws the pages of one document to JPEG files, through a pool of workers of the PDF service.
/// Pages that are planned are drawn ahead of the one that is asked for, a limited number of them,
/// under hidden names in the work folder; asking for a page waits for it and puts its file in
/// place. Only one thread asks. Destruction ends the workers and removes what was drawn ahead.
class PDFImageRep {
public:
    struct Options {
        double scale = 2.0; // pixels a point
        JPEGSettings jpeg{};
        QString workFolder{}; // where pictures drawn ahead wait
        int workers = 0; // 0: one a processor core
    };

    PDFImageRep(const PDFDocument::Source& source, const Options& options);
    ~PDFImageRep();

    /// The pages (indices from 0) that will be asked for, in that order. Replaces an earlier plan.
    void plan(const std::vector<int>& pageIndices);

    /// Draws the page, or takes it from what was drawn ahead, and moves it to path. A page that the
    /// document does not have, or that fails, is not written.
    RenderedPage drawPage(int pageIndex, const QString& path);

    /// Drops the rest of the plan; what is being drawn ahead is killed.
    void abandonPlan();

private:
    class Pool;
    std::unique_ptr<Pool> iPool;
};

} // namespace leafcast
