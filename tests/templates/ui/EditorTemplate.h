// SPDX-License-Identifier: MIT
#pragma once

#include "base/NotificationCenter.h"
#include "support/TemporaryResources.h"
#include "templates/FlashTemplate.h"
#include "templates/TemplateNotifications.h"

#include <gtest/gtest.h>
#include <QStringList>

namespace leafcast {

/// A template "float" with one property of each kind that the editor treats in a way of its own.
class EditorTemplate : public testing::Test {
protected:
    EditorTemplate()
    {
        resources.addTemplate(QStringLiteral("float"),
            group("look", "Look",
                property("pt_text", "bookTitle", "Title", "Spring")
                    + property("pt_number", "pageWidth", "Page width", "960")
                    + property("pt_color", "backgroundColor", "Background", "0x336699")
                    + property("pt_list", "viewMode", "Pages", "Auto", "Auto,Single,Double")
                    + property("pt_file", "logo", "Logo", "", "Images|*.jpg;*.png")
                    + property("pt_bool", "pageShadow", "Shadow", "YES"))
                + property("pt_text", "note", "Note", ""));
    }

    static QByteArray property(const QByteArray& type, const QByteArray& key,
        const QByteArray& title, const QByteArray& value, const QByteArray& source = {})
    {
        return "<property type=\"" + type + "\"><key>" + key + "</key><title>" + title
            + "</title><desc>About " + key + "</desc><value>" + value + "</value><valueSource>"
            + source + "</valueSource><defalutValue>" + value + "</defalutValue></property>";
    }

    static QByteArray group(
        const QByteArray& key, const QByteArray& title, const QByteArray& properties)
    {
        return "<property type=\"pt_composite\"><key>" + key + "</key><title>" + title
            + "</title><desc/><value/><valueSource/><defalutValue/><childProperties>" + properties
            + "</childProperties></property>";
    }

    std::shared_ptr<FlashTemplate> load() { return std::make_shared<FlashTemplate>(); }

    TemporaryResources resources;
};

/// The keys of the properties whose change was announced, in order.
class ChangedKeys {
public:
    ChangedKeys()
        : iRegistration(NotificationCenter::defaultCenter().addObserver(
            FlashTmplProValueChangedNotification, [this](const Notification& notification) {
                const auto object = notification.userInfo.value(notificationObject);
                iKeys.append(object.value<FlashTemplateProperty*>()->key());
            }))
    {
    }

    /// Those since the last call.
    QStringList take() { return std::exchange(iKeys, {}); }

private:
    QStringList iKeys;
    NotificationCenter::Registration iRegistration;
};

} // namespace leafcast
