// SPDX-License-Identifier: MIT
#include "templates/ui/PropertyEdits.h"

#include "base/NotificationCenter.h"
#include "templates/TemplateNotifications.h"
#include "templates/ui/TemplateText.h"

#include <utility>

namespace leafcast {

PropertyEdits::PropertyEdits(QObject* parent)
    : QObject(parent)
{
}

bool PropertyEdits::setValue(FlashTemplateProperty& property, const QString& value)
{
    if (value == property.value())
        return false;
    const bool inSession = iEdited == &property;
    push(tr("Change of “%1”").arg(TemplateText::of(property.title())),
        { { &property, property.value(), value } },
        inSession ? iSession : PropertyValueCommand::noSession);
    return true;
}

void PropertyEdits::setValues(const QString& stepName, std::vector<PropertyChange> changes)
{
    if (!changes.empty())
        push(stepName, std::move(changes), PropertyValueCommand::noSession);
}

void PropertyEdits::beginSession(FlashTemplateProperty& property)
{
    ++iSession;
    iEdited = &property;
    iValueBefore = property.value();
}

void PropertyEdits::endSession(const FlashTemplateProperty& property)
{
    // The editor of the next property may open before this one's is gone.
    if (iEdited == &property)
        iEdited = nullptr;
}

void PropertyEdits::revertSession()
{
    if (iEdited)
        setValue(*iEdited, iValueBefore);
}

void PropertyEdits::clear()
{
    iEdited = nullptr;
    iUndoStack.clear();
}

void PropertyEdits::push(const QString& stepName, std::vector<PropertyChange> changes, int session)
{
    const auto set = [this](FlashTemplateProperty& property, const QString& value) {
        assign(property, value);
    };
    iUndoStack.push(new PropertyValueCommand(stepName, std::move(changes), session, set));
}

void PropertyEdits::assign(FlashTemplateProperty& property, const QString& value)
{
    property.setValue(value);
    Q_EMIT valueChanged(&property);
    NotificationCenter::defaultCenter().post(FlashTmplProValueChangedNotification,
        { { notificationObject, QVariant::fromValue(&property) } });
}

} // namespace leafcast
