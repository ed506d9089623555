// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <QUndoCommand>
#include <vector>

namespace leafcast {

class FlashTemplateProperty;

struct PropertyChange {
    FlashTemplateProperty* property = nullptr;
    QString before;
    QString after;
};

/// One step of the property editor's history: values of one property or of several. Steps of one
/// session of an editor, such as the letters of a typed word, become one; a session that ends where
/// it began leaves none.
class PropertyValueCommand : public QUndoCommand {
public:
    using Assign = std::function<void(FlashTemplateProperty&, const QString&)>;
    static constexpr int noSession = -1;

    PropertyValueCommand(
        const QString& text, std::vector<PropertyChange> changes, int session, Assign assign);

    int id() const override { return iSession; }
    void redo() override;
    void undo() override;
    bool mergeWith(const QUndoCommand* next) override;

private:
    std::vector<PropertyChange> iChanges;
    int iSession;
    Assign iAssign;
};

} // namespace leafcast
