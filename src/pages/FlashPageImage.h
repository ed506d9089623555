// SPDX-License-Identifier: MIT
#pragma once

#include "pages/FlashPage.h"

namespace leafcast {

/// A page from an image file that the user supplied.
class FlashPageImage : public FlashPage {
public:
    using FlashPage::FlashPage;

    std::shared_ptr<FlashPage> copyPage(qint32 size, qint32 quality) const override;
};

} // namespace leafcast
