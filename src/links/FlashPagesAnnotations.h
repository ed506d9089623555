// SPDX-License-Identifier: MIT
#pragma once

#include "base/XMLElement.h"

#include <optional>
#include <QStringList>

namespace leafcast {

/// The clickable areas of a book's pages as a tree of records rooted at "pagesAnnos", and the extra
/// files that they need.
class FlashPagesAnnotations {
public:
    virtual ~FlashPagesAnnotations() = default;

    /// Full paths; the book writer copies each under its own name.
    QStringList& needFiles() { return iNeedFiles; }
    const QStringList& needFiles() const { return iNeedFiles; }
    void setNeedFiles(const QStringList& files) { iNeedFiles = files; }

    /// None until it is loaded.
    virtual std::optional<XMLElement> pagesAnnotationsNode() const { return iPagesAnnotationsNode; }
    void setPagesAnnotationsNode(std::optional<XMLElement> root)
    {
        iPagesAnnotationsNode = std::move(root);
    }

private:
    QStringList iNeedFiles;
    std::optional<XMLElement> iPagesAnnotationsNode;
};

} // namespace leafcast
