// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <mupdf/pdf.h>
#include <QByteArray>

namespace leafcast::service {

class Library;

/// The ICC profile of the printing condition that the document was made for (an output intent);
/// empty when it names none for CMYK.
QByteArray outputIntentProfile(const Library& library, pdf_document* document);

/// The CMYK profile that is installed with Ghostscript; empty when it is not.
QByteArray installedProfile();

} // namespace leafcast::service
