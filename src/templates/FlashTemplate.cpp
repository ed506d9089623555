// SPDX-License-Identifier: MIT
#include "templates/FlashTemplate.h"

#include "base/FileSteps.h"
#include "base/Log.h"
#include "base/XMLParser.h"

#include <QDir>
#include <QFileInfo>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    using Failure = TemplateLoadOutcome::Failure;

    TemplateLoadOutcome handleError(const QString& file, const XMLParser::Error& error)
    {
        LOG_ERROR("FlashTemplate",
            u"%1, line %2: %3"_s.arg(file, QString::number(error.line), error.message));
        return { Failure::BrokenDescription, file, error.line, error.message };
    }

    XMLElement mandatoryChild(const XMLElement& parent, const QString& name)
    {
        if (const auto child = parent.firstChild(name))
            return *child;
        throw MalformedTemplate(
            parent.line(), u"the element \"%1\" has no \"%2\""_s.arg(parent.name(), name));
    }

} // namespace

FlashTemplate::FlashTemplate()
{
    loadTemplate(iTmplName);
    LOG_DEBUG("FlashTemplate",
        u"self is:%1 (%2 properties)"_s.arg(iTmplName, QString::number(iProperties.size())));
}

FlashTemplate::OpenResult FlashTemplate::open(const QString& name)
{
    const QString file = tmplMetaPathForName(name);
    if (!availableTemplates().contains(name))
        return { nullptr, { Failure::NoSuchTemplate, file, 0, u"there is no such template"_s } };
    try {
        const std::shared_ptr<FlashTemplate> opened(new FlashTemplate(NothingLoaded()));
        const TemplateLoadOutcome outcome = opened->loadTemplate(name);
        return { outcome.isLoaded() ? opened : nullptr, outcome };
    } catch (const MalformedTemplate& error) {
        return { nullptr, { Failure::BrokenDescription, file, error.line(), error.reason() } };
    }
}

std::shared_ptr<FlashTemplate> FlashTemplate::copy() const
{
    auto made = std::make_shared<FlashTemplate>(*this);
    made->setProperties(copyOf(iProperties));
    return made;
}

TemplateLoadOutcome FlashTemplate::loadTemplate(const QString& tmplName)
{
    iProperties.clear();
    iTmplName = tmplName;
    const QString file = tmplMetaPathForName(tmplName);
    if (!QUrl::fromLocalFile(file).isValid()) {
        LOG_ERROR("FlashTemplate", u"Can't create an URL from file %1."_s.arg(file));
        return { Failure::NoSuchTemplate, file, 0, u"its name can't be a file's"_s };
    }
    const auto text = FileSteps::read(file);
    if (!text)
        return handleError(file, { u"it can't be read"_s, 0 });

    XMLParser parser;
    auto root = parser.parse(*text, XMLParser::Mode::Strict);
    if (!root)
        root = parser.parse(*text, XMLParser::Mode::Tidying);
    if (!root)
        return handleError(file, parser.error());
    loadInfo(*root);
    loadProperties(*root);
    return {};
}

void FlashTemplate::loadInfo(const XMLElement& root)
{
    const XMLElement info = mandatoryChild(root, u"info"_s);
    iHTMLFilePath = mandatoryChild(info, u"htmlPath"_s).stringValue();
    iSWFFilePath = mandatoryChild(info, u"swfPath"_s).stringValue();
    iDefaultSytleName = mandatoryChild(info, u"defaultStyle"_s).stringValue();
    iMacAppFilesFolder = mandatoryChild(info, u"macAppFilesFolder"_s).stringValue();
    iMobileTmplFilesPath = mandatoryChild(info, u"mobileTmplFilesPath"_s).stringValue();
}

void FlashTemplate::loadProperties(const XMLElement& root)
{
    const XMLElement list = mandatoryChild(root, u"properties"_s);
    // Only a whole list replaces the empty one: a malformed property throws.
    FlashTemplateProperties properties;
    for (const XMLElement& element : list.children(u"property"_s)) {
        auto property = std::make_shared<FlashTemplateProperty>();
        property->loadFromNode(element);
        properties.push_back(std::move(property));
    }
    iProperties = std::move(properties);
}

TemplateLoadOutcome FlashTemplate::changeTmplTo(const QString& tmplName, const QString& stylePath)
{
    const QString pageWidth = propertyValueFor(u"pageWidth"_s, u"960"_s);
    const QString pageHeight = propertyValueFor(u"pageHeight"_s, u"600"_s);
    const QString language = propertyValueFor(u"languageSetting"_s, u""_s);
    TemplateLoadOutcome outcome = loadTemplate(tmplName);
    loadStyleByStylePath(stylePath);
    setPropertyValue(u"pageWidth"_s, pageWidth);
    setPropertyValue(u"pageHeight"_s, pageHeight);
    setPropertyValue(u"languageSetting"_s, language);
    return outcome;
}

SettingsImportReport FlashTemplate::loadStyleByStyleName(const QString& styleName)
{
    return loadStyleByStylePath(stylePathFor(iTmplName, styleName));
}

SettingsImportReport FlashTemplate::loadStyleByStylePath(const QString& stylePath)
{
    iStyleName = QFileInfo(QDir::cleanPath(stylePath)).fileName();
    return importPropertiesSettingsFrom(stylePath + u"/tmplSetting.txt"_s);
}

} // namespace leafcast
