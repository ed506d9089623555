// SPDX-License-Identifier: MIT
#include "FuzzTarget.h"
#include "support/TemporaryResources.h"
#include "templates/FlashTemplate.h"

using namespace leafcast;
using namespace Qt::StringLiterals;

namespace {

const TemporaryResources& resources()
{
    static const TemporaryResources made;
    static const bool isFilled = [] {
        made.addTemplate(u"float"_s,
            TemporaryResources::property("pt_number", "pageWidth", "960")
                + TemporaryResources::property("pt_number", "pageHeight", "1280")
                + TemporaryResources::property("pt_text", "title", "T")
                + TemporaryResources::property("pt_file", "image", "")
                + TemporaryResources::group(
                    "g", TemporaryResources::property("pt_color", "color", "0xffffff")));
        return true;
    }();
    fuzz::require(isFilled, "the template is there");
    return made;
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    resources();
    FlashTemplate flashTemplate;
    const QString file = fuzz::fileWith(fuzz::bytesOf(data, size), u"settings.txt"_s);
    const SettingsImportReport report = flashTemplate.importPropertiesSettingsFrom(file);
    fuzz::require(report.readable, "a file that is there is read");
    fuzz::require(flashTemplate.propertyValueFor(u"pageWidth"_s, {}) == u"960"
            && flashTemplate.propertyValueFor(u"pageHeight"_s, {}) == u"1280",
        "an import leaves the page size");

    const QString title = flashTemplate.propertyValueFor(u"title"_s, {});
    const QString exported = QString(file).replace(u"settings"_s, u"exported"_s);
    fuzz::require(flashTemplate.exportPropertiesSettingsTo(exported), "settings are exported");
    FlashTemplate other;
    other.importPropertiesSettingsFrom(exported);
    fuzz::require(title.contains(u'\n') || title.contains(u'\r')
            || other.propertyValueFor(u"title"_s, {}) == title,
        "what was exported is imported again");
    return 0;
}
