// SPDX-License-Identifier: MIT
#pragma once

#include "publish/ReaderData.h"

#include <QByteArrayList>

/// The scripts that hold reader data, each one line, and the pieces that they are put together
/// from. Texts are escaped so that none can end its string, its script element or its line.
namespace leafcast::ReaderDataScript {

/// All of a page but its text.
QByteArray page(const ReaderPage& page);
/// A page's text.
QByteArray text(const std::vector<PDFTextLine>& lines);
QByteArray outline(const std::vector<ReaderOutlineItem>& items);

/// The file "book.js". textStarts: the first place of each text file; none when there is no text.
QByteArray bookFile(
    const std::vector<int>& textStarts, const QByteArrayList& pages, const QByteArray& outline);
/// The file "text-NUMBER.js", numbered from 1.
QByteArray textFile(int number, const QByteArrayList& texts);

} // namespace leafcast::ReaderDataScript
