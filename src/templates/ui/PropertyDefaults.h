// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <unordered_map>

namespace leafcast {

class FlashTemplate;
class FlashTemplateProperty;

/// What the properties of a template are without the user's edits: the style's value where the
/// style has one, else the template's default. The page size follows the document, so its default
/// is what it was when this was made. Good until the template's tree or style is replaced.
class PropertyDefaults {
public:
    PropertyDefaults() = default;
    explicit PropertyDefaults(const FlashTemplate& flashTemplate);

    QString valueOf(const FlashTemplateProperty& property) const;
    /// By meaning: "true" and "YES" are the same for a switch, letter case is for a colour.
    bool isChanged(const FlashTemplateProperty& property) const;

private:
    void readStyle(const FlashTemplate& flashTemplate);

    std::unordered_map<const FlashTemplateProperty*, QString> iOwnDefaults;
};

} // namespace leafcast
