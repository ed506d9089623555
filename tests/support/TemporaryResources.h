// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QTemporaryDir>

namespace leafcast {

/// A resource folder of a test's own, in place of the program's while it lives.
class TemporaryResources {
public:
    TemporaryResources();
    ~TemporaryResources();
    TemporaryResources(const TemporaryResources&) = delete;
    TemporaryResources& operator=(const TemporaryResources&) = delete;

    QString path(const QString& relativePath) const;
    /// Makes the missing folders too; returns the full path.
    QString addFile(const QString& relativePath, const QByteArray& content) const;

    /// Adds AppFiles/Templates/NAME/flashTemplate.xml with these "property" elements.
    void addTemplate(const QString& name, const QByteArray& properties) const;
    /// One "property" element without children.
    static QByteArray property(
        const QByteArray& type, const QByteArray& key, const QByteArray& value);
    /// One group with what is inside.
    static QByteArray group(const QByteArray& key, const QByteArray& properties);

private:
    QTemporaryDir iFolder;
    QByteArray iFormerFolder;
};

} // namespace leafcast
