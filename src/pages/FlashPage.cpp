// SPDX-License-Identifier: MIT
#include "pages/FlashPage.h"

namespace leafcast {

std::shared_ptr<FlashPage> FlashPage::copyPage(qint32 /*size*/, qint32 /*quality*/) const
{
    return std::make_shared<FlashPage>(iPageFilePath, iPageIndex);
}

} // namespace leafcast
