// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "pdf_service/PageGeometry.h"
#include "pdf_service/Target.h"

#include <QString>
#include <vector>

namespace leafcast::service {

struct Annotation {
    QString type{}; // subtype without the slash
    Box bounds{}; // as in the file, normalised
    Target target{};
};

/// In the order of the file. Throws ServiceError.
std::vector<Annotation> annotationsOfPage(const Document& document, int pageIndex);

} // namespace leafcast::service
