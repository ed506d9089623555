// SPDX-License-Identifier: MIT
#pragma once

#include "templates/FlashTemplateProperty.h"
#include "templates/SettingsFile.h"

#include <QStringList>

namespace leafcast {

/// What became of loading a template, for callers who tell the user.
struct TemplateLoadOutcome {
    enum class Failure { None, NoSuchTemplate, BrokenDescription };

    Failure failure = Failure::None;
    QString file; // the description file
    int line = 0; // from 1; 0 when unknown
    QString reason; // a clause for people

    bool isLoaded() const { return failure == Failure::None; }
};

/// The template in use: its property tree, the library of templates and styles in the resource
/// folder, the exchange of settings, and the files that a book takes from the template. Owns the
/// tree. One thread.
class FlashTemplate {
public:
    struct OpenResult;

    /// The template "float" with its own values, no style applied. Throws MalformedTemplate.
    FlashTemplate();

    /// The template of that name, no style applied; never throws.
    [[nodiscard]] static OpenResult open(const QString& name);

    /// With a tree of its own, for a writer on another thread.
    std::shared_ptr<FlashTemplate> copy() const;

    // The library
    /// Full paths of all folders below the template library, at every depth.
    static QStringList tmplNames();
    /// Full paths of all folders below the styles of a template.
    static QStringList tmplStyleNamesForTmpl(const QString& tmplName);
    static QString stylePathFor(const QString& tmplName, const QString& styleName);
    static QString tmplPathForName(const QString& tmplName); // ends in "/"
    static QString tmplMetaPathForName(const QString& tmplName);
    /// Names of the templates that have a description file, and of the styles of one.
    static QStringList availableTemplates();
    static QStringList availableStyles(const QString& tmplName);

    /// Replaces the tree by that of the named template. A failed load leaves an empty tree under
    /// the new name: with a log record when the description can't be read; by throwing
    /// MalformedTemplate when it lacks what it must have.
    TemplateLoadOutcome loadTemplate(const QString& tmplName);
    /// Loads and applies the style, keeping the page size and the language.
    TemplateLoadOutcome changeTmplTo(const QString& tmplName, const QString& stylePath);
    SettingsImportReport loadStyleByStyleName(const QString& styleName);
    SettingsImportReport loadStyleByStylePath(const QString& stylePath);

    // Settings. A key names the first property that has it, each node before its children.
    std::shared_ptr<FlashTemplateProperty> propertyForKey(const QString& key) const;
    QString propertyValueFor(const QString& key, const QString& defaultValue) const;
    /// Below the given property only; a null string when nothing matches.
    QString propertyValueFor(const FlashTemplateProperty& property, const QString& key) const;
    /// True when a property was set.
    bool setPropertyValue(const QString& key, const QString& value);
    bool setPropertyValueAt(
        const FlashTemplateProperty& property, const QString& key, const QString& value);
    /// A value with "STYLE_RESOURCE:" becomes the path of that file of the current style.
    QString valueAsFilePath(const QString& value) const;
    /// Applies a settings file; the page size stays.
    SettingsImportReport importPropertiesSettingsFrom(const QString& path);
    /// Replaces the file atomically. False, with a log line, when it can't be written.
    bool exportPropertiesSettingsTo(const QString& path) const;
    /// Appends the records of the property and what is below it; of the whole tree for none.
    void exportPropertiesSettingsToArray(
        QStringList& records, const FlashTemplateProperty* property) const;
    /// The properties as members of a script's object literal, each with a comma behind it.
    QString exportPropertiesSettingsTo1() const;
    void exportPropertiesSettingsToArray1(
        QStringList& entries, const FlashTemplateProperty* property) const;

    // Files for a book. Each copy first removes what lies at the destination; failures are logged,
    // and false tells those who ask.
    bool copyBookSWFToFile(const QString& path) const;
    bool copyBookJSFile(const QString& path) const;
    bool copyElseSWFToFile(const QString& path) const;
    bool copyJavaScriptDirToDir(const QString& folder) const;
    bool copyStyleDirToDir(const QString& folder) const;
    /// Copies two pictures into the folder and leaves those that are there already.
    void copyExtfileToDir(const QString& folder) const;
    /// Does nothing: the page is rendered from tmplHTMLFilePath.
    void copyHTMLToFile(const QString& path) const;
    /// The template's HTML page, beside the templates if not in its folder; empty for none.
    QString tmplHTMLFilePath() const;
    /// These two are named the other way round, deliberately: the player's script, and the script
    /// that a book's configuration begins with.
    QString GetThePreviewJSPath() const;
    QString GetTheMainJSPath() const;

    const FlashTemplateProperties& properties() const { return iProperties; }
    void setProperties(FlashTemplateProperties properties) { iProperties = std::move(properties); }
    const QString& tmplName() const { return iTmplName; }
    void setTmplName(const QString& name) { iTmplName = name; }
    const QString& tmplVersion() const { return iTmplVersion; }
    void setTmplVersion(const QString& version) { iTmplVersion = version; }
    const QString& tmplFilePath() const { return iTmplFilePath; }
    void setTmplFilePath(const QString& path) { iTmplFilePath = path; }
    const QString& SWFFilePath() const { return iSWFFilePath; }
    void setSWFFilePath(const QString& path) { iSWFFilePath = path; }
    const QString& HTMLFilePath() const { return iHTMLFilePath; }
    void setHTMLFilePath(const QString& path) { iHTMLFilePath = path; }
    const QString& mobileTmplFilesPath() const { return iMobileTmplFilesPath; }
    void setMobileTmplFilesPath(const QString& path) { iMobileTmplFilesPath = path; }
    const QString& macAppFilesFolder() const { return iMacAppFilesFolder; }
    void setMacAppFilesFolder(const QString& folder) { iMacAppFilesFolder = folder; }
    const QString& defaultSytleName() const { return iDefaultSytleName; }
    void setDefaultSytleName(const QString& name) { iDefaultSytleName = name; }
    const QString& styleName() const { return iStyleName; }
    void setStyleName(const QString& name) { iStyleName = name; }
    bool needThumbs() const { return iNeedThumbs; }
    void setNeedThumbs(bool needThumbs) { iNeedThumbs = needThumbs; }

private:
    struct NothingLoaded { };
    explicit FlashTemplate(NothingLoaded) { }

    static QString tmplDataPath();
    QString fileOfTemplate(const QString& relativePath) const;
    void loadInfo(const XMLElement& root);
    void loadProperties(const XMLElement& root);
    void assignValue(FlashTemplateProperty& property, const QString& value) const;

    QString iTmplName = QStringLiteral("float");
    FlashTemplateProperties iProperties;
    QString iTmplVersion = QStringLiteral("1.0.0");
    QString iTmplFilePath;
    QString iSWFFilePath;
    QString iHTMLFilePath;
    bool iNeedThumbs = true;
    QString iMobileTmplFilesPath;
    QString iMacAppFilesFolder;
    QString iDefaultSytleName = QStringLiteral("Wall-line");
    QString iStyleName;
};

struct FlashTemplate::OpenResult {
    std::shared_ptr<FlashTemplate> flashTemplate; // none when the outcome is a failure
    TemplateLoadOutcome outcome;
};

} // namespace leafcast
