// SPDX-License-Identifier: MIT
#include "cli/PageNumbers.h"

#include "base/NamedException.h"
#include "cli/ExitCode.h"
#include "pages/FlashPageSource.h"
#include "pages/ImportSentences.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    std::vector<qint32> parsed(const QString& range, int pageCount)
    {
        try {
            return FlashPageSource::parsePageRange(range, pageCount);
        } catch (const NamedException& exception) {
            throw CommandFailure(
                ExitCode::WrongUsage, u"--pages %1: %2"_s.arg(range, exception.reason()));
        }
    }

} // namespace

std::vector<qint32> pageNumbers(const QString& range, const QString& input, int pageCount)
{
    if (pageCount == 0)
        throw CommandFailure(ExitCode::InputUnreadable, ImportSentences::noPages(input));
    auto numbers = parsed(range, pageCount);
    const auto exists = [pageCount](qint32 number) { return number >= 1 && number <= pageCount; };
    if (std::ranges::none_of(numbers, exists))
        throw CommandFailure(ExitCode::WrongUsage,
            u"--pages %1: %2 has %3, and the range names none of them"_s.arg(
                range, input, ImportSentences::countOfPages(pageCount)));
    return numbers;
}

} // namespace leafcast
