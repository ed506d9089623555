// SPDX-License-Identifier: MIT
#pragma once

#include "base/BackgroundQueue.h"
#include "base/NotificationCenter.h"
#include "publish/BookPublication.h"
#include "settings/AppSettings.h"
#include "widgets/FileOpener.h"

#include <QDialog>

class QAbstractButton;

namespace leafcast {

class OutputForm;

/// The publish sheet: shown by open() with the parts of the book set, it writes the book where the
/// user says, without blocking the window, and offers to open it. It ends with 1 after a
/// publication, else with 0, and remembers the user's choices in the settings. What can't be
/// published is told in the sheet, which stays open.
class OutputWindowDelegate : public QDialog {
    Q_OBJECT

public:
    explicit OutputWindowDelegate(
        QWidget* parent = nullptr, AppSettings& settings = AppSettings::shareInstance());
    ~OutputWindowDelegate() override;

    const std::shared_ptr<FlashTemplate>& flashTmpl() const { return iParts.flashTemplate; }
    void setFlashTmpl(std::shared_ptr<FlashTemplate> flashTemplate);
    const std::shared_ptr<FlashPageSource>& flashPageSource() const { return iParts.pageSource; }
    void setFlashPageSource(std::shared_ptr<FlashPageSource> source);
    const std::shared_ptr<FlashOutline>& flashOutline() const { return iParts.outline; }
    void setFlashOutline(std::shared_ptr<FlashOutline> outline);
    const std::shared_ptr<FlashPagesAnnotations>& flashPagesAnnotations() const
    {
        return iParts.annotations;
    }
    void setFlashPagesAnnotations(std::shared_ptr<FlashPagesAnnotations> annotations);
    void setOpener(FileOpener opener) { iOpener = std::move(opener); }
    bool isPublishing() const { return iPublication != nullptr; }

    void onSelectFolder();
    /// The code is not looked at, deliberately: whatever the panel reports is taken.
    void openPanelDidEnd(int returnCode, const QString& folder);
    void onOpenFolder();
    void onCancel();
    void onPublish();
    void reject() override { onCancel(); }

private:
    void awakeFromNib();
    void connectControls();
    void enableControls(bool enabled);
    void rememberChoices();
    BookPublication::Choices choices() const;
    void askToReplace(const QString& problem, const std::shared_ptr<BookPublication>& publication);
    void start(std::shared_ptr<BookPublication> publication);
    void showProgress(const Notification& notification);
    void publicationEnded();
    void askToOpen(const QString& path);

    AppSettings& iSettings;
    OutputForm* iForm;
    FileOpener iOpener = openWithDesktop;
    BookPublication::Parts iParts;
    std::shared_ptr<BookPublication> iPublication; // while it runs
    BackgroundQueue iQueue;
    NotificationCenter::Registration iProgress;
};

} // namespace leafcast
