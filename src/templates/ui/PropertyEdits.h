// SPDX-License-Identifier: MIT
#pragma once

#include "templates/FlashTemplateProperty.h"
#include "templates/ui/PropertyValueCommand.h"

#include <QObject>
#include <QUndoStack>

namespace leafcast {

/// The one place where the property editor changes values: each change is a step that can be undone
/// and is announced by FlashTmplProValueChangedNotification, when it is undone too. The properties
/// outlive the history: whoever replaces them clears it first.
class PropertyEdits : public QObject {
    Q_OBJECT

public:
    explicit PropertyEdits(QObject* parent = nullptr);

    QUndoStack& undoStack() { return iUndoStack; }

    /// False for the value that the property has already: then nothing happens.
    bool setValue(FlashTemplateProperty& property, const QString& value);
    /// Several values as one step; nothing without changes.
    void setValues(const QString& stepName, std::vector<PropertyChange> changes);

    /// Until endSession, the edits of this property are one step.
    void beginSession(FlashTemplateProperty& property);
    void endSession(const FlashTemplateProperty& property);
    /// Takes back what the session has changed.
    void revertSession();

    void clear();

Q_SIGNALS:
    void valueChanged(FlashTemplateProperty* property);

private:
    void push(const QString& stepName, std::vector<PropertyChange> changes, int session);
    void assign(FlashTemplateProperty& property, const QString& value);

    QUndoStack iUndoStack;
    FlashTemplateProperty* iEdited = nullptr; // while a session lasts
    QString iValueBefore;
    int iSession = 0;
};

} // namespace leafcast
