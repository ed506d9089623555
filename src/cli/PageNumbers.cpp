// SPDX-License-Identifier: MIT
#include "cli/PageNumbers.h"

#include "base/NamedException.h"
#include "cli/ExitCode.h"
#include "pages/FlashPageSource.h"

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
        throw CommandFailure(ExitCode::InputUnreadable, u"%1 has no pages"_s.arg(input));
    auto numbers = parsed(range, pageCount);
    const auto exists = [pageCount](qint32 number) { return number >= 1 && number <= pageCount; };
    if (std::ranges::none_of(numbers, exists))
        throw CommandFailure(ExitCode::WrongUsage,
            u"--pages %1: %2 has %3, and the range names none of them"_s.arg(
                range, input, countOfPages(pageCount)));
    return numbers;
}

QString countOfPages(qsizetype count)
{
    return count == 1 ? u"1 page"_s : u"%1 pages"_s.arg(count);
}

} // namespace leafcast
