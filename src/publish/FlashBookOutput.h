// SPDX-License-Identifier: MIT
#pragma once

#include "links/FlashOutline.h"
#include "links/FlashPagesAnnotations.h"
#include "pages/FlashPageSource.h"
#include "publish/HTMLConfigInfo.h"
#include "templates/FlashTemplate.h"

#include <memory>
#include <QSize>
#include <QStringList>
#include <vector>

namespace leafcast {

/// Writes one book into a folder: pictures, player, script and page. Made for one output, used
/// once. Every step is done as well as it can be: a failure leaves a log line and the next step
/// runs; BookCheck tells afterwards what the book lacks. One thread, which is the main thread
/// for the constructor at least.
class FlashBookOutput {
public:
    using PageSource = std::shared_ptr<FlashPageSource>;
    using Template = std::shared_ptr<FlashTemplate>;

    /// The folder must exist. A null file name means "index.html".
    FlashBookOutput(PageSource pageSource, Template flashTemplate, const QString& saveToFolder,
        const QString& fileName);
    virtual ~FlashBookOutput() = default;
    FlashBookOutput(const FlashBookOutput&) = delete;
    FlashBookOutput& operator=(const FlashBookOutput&) = delete;

    /// Does nothing when the folder does not exist.
    virtual void ouputTheBook();

    /// Path of the book's HTML page.
    virtual QString outputHTMLFileName() const;
    /// What callers open after the output.
    virtual QString outputFileName() const { return outputHTMLFileName(); }
    QString outputSWFName() const; // a name only, nothing writes it
    QString mainScriptFileName() const;
    /// "files/search/book.js", and the text files that lie beside it.
    QStringList readerDataFileNames() const;
    QString jQueryFileName() const;
    QString styleFolderName() const;
    /// Whether the template declares the switch "readerData" and has it on.
    bool wantsReaderData() const;
    /// Where the book has a page's picture, and the file that a pt_file property names.
    QString pageFileName(const FlashPage& page) const;
    QString extFileName(const FlashTemplateProperty& property) const;
    /// Where the book has the files that link areas need.
    QStringList annotationFileNames() const;
    /// Path of the preview server program; the empty string when it is not there.
    static QString GetServerPath();

    /// Relative to the resource folder of the book.
    QString getNormalPageURL(const FlashPage& page) const;
    QString getZoomedPageURL(const FlashPage& page) const;
    QString getThumbPageURL(const FlashPage& page) const;

    // The steps. An empty folder means the book's own.
    void removeExtFile(const QString& folder) const;
    void prepaireNomalPage(const QString& folder);
    void prepaireZoomendPage(const QString& folder);
    void prepaireThumbPage(const QString& folder) const;
    void prepaireExtFiles(const QString& folder);
    void prepaireExtFiles(const QString& folder, const FlashTemplateProperty& atChildPro);
    void PrepareAnnotationFiles(const QString& folder);

    /// Writes the book configuration script and stores the book's page size in AppSettings, on
    /// the main thread. Without
    /// the template's script nothing is written.
    void ouputBookXML(const QString& path) { bookXML(path); }
    void bookXML(const QString& path);
    static quint32 colorWithHexString(const QString& text);

    /// Full paths of the files and folders that could not be written, or not whole; that of an
    /// earlier output may still lie there.
    const QStringList& failedFiles() const { return iFailedFiles; }

    /// A program that travels in the book when it is installed.
    struct Companion {
        QString source; // empty when it is not installed
        QString copy;
        QString absence; // a clause for people
    };
    virtual std::vector<Companion> companions() const;

    const Template& flashTemplate() const { return iFlashTemplate; }
    void setFlashTemplate(Template flashTemplate) { iFlashTemplate = std::move(flashTemplate); }
    const PageSource& flashPageSource() const { return iFlashPageSource; }
    void setFlashPageSource(PageSource source) { iFlashPageSource = std::move(source); }
    const QString& saveToFolder() const { return iSaveToFolder; }
    void setSaveToFolder(const QString& folder) { iSaveToFolder = folder; }
    const QString& saveToFileName() const { return iSaveToFileName; }
    void setSaveToFileName(const QString& name) { iSaveToFileName = name; }
    /// With it the HTML page is filled in, else it is the template's, byte for byte.
    const std::shared_ptr<HTMLConfigInfo>& HTMLConfig() const { return iHTMLConfig; }
    void setHTMLConfig(std::shared_ptr<HTMLConfigInfo> config) { iHTMLConfig = std::move(config); }
    /// Without annotations the reader data has no links, without an outline it has none.
    const std::shared_ptr<FlashPagesAnnotations>& flashPagesAnnotations() const
    {
        return iFlashPagesAnnotations;
    }
    void setFlashPagesAnnotations(std::shared_ptr<FlashPagesAnnotations> annotations)
    {
        iFlashPagesAnnotations = std::move(annotations);
    }
    const std::shared_ptr<FlashOutline>& flashOutline() const { return iFlashOutline; }
    void setFlashOutline(std::shared_ptr<FlashOutline> outline)
    {
        iFlashOutline = std::move(outline);
    }
    /// Processes that read a PDF's text; 0 is one a processor core.
    void setWorkerCount(int count) { iWorkerCount = count; }

protected:
    /// Remembers the path as failed unless its step succeeded.
    void keepResult(bool succeeded, const QString& path);

private:
    void outputHTMLPage();
    void outputPlayer();
    void copyServer();
    void outputReaderData();
    QString configurationText() const;
    void takePageSize();
    void copyExtFile(const QString& folder, const FlashTemplateProperty& property);
    QString extFileURL(const FlashTemplateProperty& property) const;
    QString baseOf(const QString& folder) const;
    QString serverFileName() const;
    QString readerDataFolder() const;
    QString inBook(const QString& relativePath) const;
    QString inResources(const QString& base, const QString& relativePath) const;

    Template iFlashTemplate;
    PageSource iFlashPageSource;
    std::shared_ptr<FlashPagesAnnotations> iFlashPagesAnnotations;
    std::shared_ptr<FlashOutline> iFlashOutline;
    QString iSaveToFolder;
    QString iSaveToFileName;
    std::shared_ptr<HTMLConfigInfo> iHTMLConfig;
    QString iResourceFolder = QStringLiteral("files");
    QString iNormalPageFolder = QStringLiteral("page");
    QString iZoomedPageFolder = QStringLiteral("large");
    QString iThumbPageFolder = QStringLiteral("thumb"); // unused
    QString iExterFilesFolder = QStringLiteral("extfile");
    QString iSearchInfoFolder = QStringLiteral("search");
    QString iAnnotationFilesFolder = QStringLiteral("pageConfig");
    bool iZoomedPageSameAsNormalPage = true;
    int iWorkerCount = 0;
    QSize iPageSize; // of a book without pages it is that of the settings
    QStringList iFailedFiles;
};

} // namespace leafcast
