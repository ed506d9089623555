// SPDX-License-Identifier: MIT
#include "FuzzTarget.h"
#include "support/TemporaryResources.h"
#include "templates/FlashTemplate.h"
#include "templates/PropertyValueCheck.h"
#include "templates/PropertyWalk.h"
#include "templates/ScriptHazard.h"

using namespace leafcast;
using namespace Qt::StringLiterals;

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const TemporaryResources resources;
    resources.addFile(u"AppFiles/Templates/float/flashTemplate.xml"_s, fuzz::bytesOf(data, size));
    const auto [flashTemplate, outcome] = FlashTemplate::open(u"float"_s);
    fuzz::require(outcome.isLoaded() == (flashTemplate != nullptr),
        "a template is there exactly when it was loaded");
    fuzz::require(
        outcome.isLoaded() || !outcome.reason.isEmpty(), "a failure to load has a reason");
    if (!flashTemplate)
        return 0;
    const QString script = flashTemplate->copy()->exportPropertiesSettingsTo1();
    fuzz::require(!scriptHazards(flashTemplate->properties()).empty()
            || (script.count(u'"') % 2 == 0 && !script.contains(u'\n')),
        "a script without hazards closes its texts");
    forEachProperty(flashTemplate->properties(),
        [](const auto& property) { checkPropertyValue(property, property.value()); });
    return 0;
}
