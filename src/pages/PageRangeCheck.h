// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>

namespace leafcast {

/// What is wrong with a page range that a person types, before it is parsed: the parser takes any
/// text, and reads what makes no sense as other pages than were meant.
class PageRangeCheck {
    Q_DECLARE_TR_FUNCTIONS(leafcast::PageRangeCheck)

public:
    /// A sentence for people, empty when the range is right. pageCount 0: not known.
    static QString problem(const QString& range, int pageCount);

private:
    static QString problemOfPiece(const QString& piece, int pageCount);
};

} // namespace leafcast
