// SPDX-License-Identifier: MIT
#include "pages/FlashPageImage.h"

namespace leafcast {

std::shared_ptr<FlashPage> FlashPageImage::copyPage(qint32 /*size*/, qint32 /*quality*/) const
{
    return std::make_shared<FlashPageImage>(pageFilePath(), pageIndex());
}

} // namespace leafcast
