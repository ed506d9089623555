// SPDX-License-Identifier: MIT
#pragma once

#include "base/XMLElement.h"

#include <functional>
#include <optional>
#include <QStringList>
#include <utility>

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

    /// None until it is loaded or set. One thread at a time, as for the tree itself.
    std::optional<XMLElement> pagesAnnotationsNode() const
    {
        if (const auto make = std::exchange(iMakeNode, nullptr))
            iPagesAnnotationsNode = make();
        return iPagesAnnotationsNode;
    }
    void setPagesAnnotationsNode(std::optional<XMLElement> root)
    {
        iMakeNode = nullptr;
        iPagesAnnotationsNode = std::move(root);
    }

protected:
    /// Sets a tree that is made when it is first asked for, and then kept.
    void setPagesAnnotationsNodeMadeBy(std::function<XMLElement()> make)
    {
        iPagesAnnotationsNode.reset();
        iMakeNode = std::move(make);
    }

private:
    QStringList iNeedFiles;
    mutable std::optional<XMLElement> iPagesAnnotationsNode;
    mutable std::function<XMLElement()> iMakeNode; // until the tree is asked for
};

} // namespace leafcast
