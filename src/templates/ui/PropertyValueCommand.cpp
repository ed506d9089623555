// SPDX-License-Identifier: MIT
#include "templates/ui/PropertyValueCommand.h"

#include <utility>

namespace leafcast {

PropertyValueCommand::PropertyValueCommand(
    const QString& text, std::vector<PropertyChange> changes, int session, Assign assign)
    : QUndoCommand(text)
    , iChanges(std::move(changes))
    , iSession(session)
    , iAssign(std::move(assign))
{
}

void PropertyValueCommand::redo()
{
    for (const PropertyChange& change : iChanges)
        iAssign(*change.property, change.after);
}

void PropertyValueCommand::undo()
{
    for (const PropertyChange& change : iChanges)
        iAssign(*change.property, change.before);
}

bool PropertyValueCommand::mergeWith(const QUndoCommand* next)
{
    // Equal ids mean one session, and a session edits one property.
    const auto& following = static_cast<const PropertyValueCommand&>(*next);
    iChanges.front().after = following.iChanges.front().after;
    setObsolete(iChanges.front().after == iChanges.front().before);
    return true;
}

} // namespace leafcast
