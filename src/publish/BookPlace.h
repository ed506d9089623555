// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace leafcast {

/// Where a book goes: a folder, or a package NAME.app inside a folder. Each question is asked
/// before anything is changed; the answer is a sentence without capital and full stop, empty when
/// there is nothing to object.
class BookPlace {
public:
    enum class Kind { Folder, Package };

    /// packageName: without extension; not used for a folder.
    BookPlace(const QString& folder, Kind kind, const QString& packageName);

    /// What is no book of ours lies there: names what would be lost.
    QString replacementProblem() const;
    /// The folder can't be made or written to.
    QString writingProblem() const;
    /// The name of a file or package is longer than the file system takes.
    QString nameLengthProblem(const QString& name) const;
    /// One of the files that are to be read would be replaced.
    QString inputProblem(const QStringList& inputs) const;

    const QString& folder() const { return iFolder; } // absolute
    Kind kind() const { return iKind; }
    /// The folder or the package.
    const QString& bookPath() const { return iKind == Kind::Folder ? iFolder : iPackagePath; }
    /// Everything below these goes, or may go, while the book is written.
    QStringList replacedPaths() const;

    /// The sentence on the first input inside one of the paths; empty when none is.
    static QString inputProblem(const QStringList& inputs, const QStringList& replacedPaths);

private:
    QString folderProblem() const;
    QString packageProblem() const;

    QString iFolder;
    Kind iKind;
    QString iPackagePath;
};

} // namespace leafcast
