// SPDX-License-Identifier: MIT
#pragma once

namespace leafcast {

/// What one worker of the PDF service may use before it is killed and replaced.
struct PDFServiceLimits {
    int pageSeconds = 30;
    int memoryMebibytes = 1024; // address space of a worker
    int niceness = 0; // how far a worker steps back behind other programs; 0 to 19
};

} // namespace leafcast
