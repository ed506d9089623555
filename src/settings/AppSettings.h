// SPDX-License-Identifier: MIT
#pragma once

#include "base/UserDefaults.h"

#include <QString>
#include <span>
#include <variant>

namespace leafcast {

/// The user's last choices: what was imported and how, what was published and where. Each property
/// is stored under its own name, integers as numbers and strings as strings. Values reach the store
/// only by saveSettings(). The fields are unguarded: main thread only.
class AppSettings {
public:
    /// The one of the process, over UserDefaults::standard(). Safe on any thread.
    static AppSettings& shareInstance();

    /// Loads. The page size starts at 938 x 1250 whatever is stored: it belongs to the book, which
    /// an import replaces.
    explicit AppSettings(UserDefaults& defaults);

    void saveSettings() { autoSave(); }
    void loadSettings() { autoLoad(); }

    /// Stores every property but those that are as they were last loaded or saved here: another
    /// process may have chosen anew meanwhile. A failure to write is logged only.
    void autoSave();
    /// A value of another kind is converted where it can be, else the property stays as it is.
    void autoLoad();

    const QString& lastImportedFile() const { return iLastImportedFile; }
    void setLastImportedFile(const QString& path) { iLastImportedFile = path; }

    qint32 importPageRangeType() const { return iImportPageRangeType; }
    void setImportPageRangeType(qint32 type) { iImportPageRangeType = type; }

    const QString& importPageRange() const { return iImportPageRange; }
    void setImportPageRange(const QString& range) { iImportPageRange = range; }

    qint32 importQualityLevel() const { return iImportQualityLevel; }
    void setImportQualityLevel(qint32 level) { iImportQualityLevel = level; }

    const QString& lastOutputFileFolder() const { return iLastOutputFileFolder; }
    void setLastOutputFileFolder(const QString& path) { iLastOutputFileFolder = path; }

    /// Without extension.
    const QString& lastOutputFileName() const { return iLastOutputFileName; }
    void setLastOutputFileName(const QString& name) { iLastOutputFileName = name; }

    const QString& lastOutputFileTitle() const { return iLastOutputFileTitle; }
    void setLastOutputFileTitle(const QString& title) { iLastOutputFileTitle = title; }

    /// 0: HTML folder, 1: desktop application package.
    qint32 outputType() const { return iOutputType; }
    void setOutputType(qint32 type) { iOutputType = type; }

    /// Flag, 0 or 1, like importLinks.
    qint32 importBookmark() const { return iImportBookmark; }
    void setImportBookmark(qint32 flag) { iImportBookmark = flag; }

    qint32 importLinks() const { return iImportLinks; }
    void setImportLinks(qint32 flag) { iImportLinks = flag; }

    /// Pixels, like PageHeight.
    qint32 PageWidth() const { return iPageWidth; }
    void setPageWidth(qint32 width) { iPageWidth = width; }

    qint32 PageHeight() const { return iPageHeight; }
    void setPageHeight(qint32 height) { iPageHeight = height; }

    struct Property {
        QStringView key;
        std::variant<QString AppSettings::*, qint32 AppSettings::*> field;
    };
    /// Every property, in the order in which they are saved and loaded.
    static std::span<const Property> properties();

private:
    UserDefaults& iDefaults;
    QJsonObject iStored; // as last loaded or saved
    QString iLastImportedFile;
    qint32 iImportPageRangeType = 0;
    QString iImportPageRange;
    qint32 iImportQualityLevel = 0;
    QString iLastOutputFileFolder;
    QString iLastOutputFileName;
    QString iLastOutputFileTitle;
    qint32 iOutputType = 0;
    qint32 iImportBookmark = 0;
    qint32 iImportLinks = 0;
    qint32 iPageWidth = 0;
    qint32 iPageHeight = 0;
};

} // namespace leafcast
