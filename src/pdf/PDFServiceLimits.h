// SPDX-License-Identifier: MIT
#pragma once

namespace leafcast {

/// What one worker of the PDF service may use before it is killed and replaced.
struct PDFServiceLimits {
    int pageSeconds = 30;
    int memoryMebibytes = 1024; // address space of a worker
};

} // namespace leafcast
