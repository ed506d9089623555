// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QStringList>

namespace leafcast {

class FlashBookOutput;

/// Which entries of a book's folder make up the book. Pictures of an earlier book stay in the
/// folder, and other people's files may lie there too; none of them is to be handed on with it.
class BookContent {
public:
    /// As the writer leaves it.
    explicit BookContent(const FlashBookOutput& book);

    /// relativePath: of a file or folder, to the book's folder.
    bool contains(const QString& relativePath) const;

    /// Full paths of what a book has beside its pages.
    static QStringList filesBesidePages(const FlashBookOutput& book);

private:
    void add(QString relativePath);

    QSet<QString> iPaths; // with a folder comes what it holds
    QSet<QString> iFoldersAbove;
};

} // namespace leafcast
