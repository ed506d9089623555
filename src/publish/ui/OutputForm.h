// SPDX-License-Identifier: MIT
#pragma once

#include <QButtonGroup>
#include <QProgressBar>
#include <QPushButton>
#include <QToolButton>
#include <QWidget>

class QBoxLayout;
class QFormLayout;

namespace leafcast {

class ProblemLabel;
class SheetField;

/// The controls of the publish sheet, laid out; each has its member's name as object name. What
/// they do is the sheet's affair.
class OutputForm : public QWidget {
    Q_OBJECT

public:
    enum OutputTypeTag { htmlFolder = 0, desktopPackage = 1 };

    explicit OutputForm(QWidget* parent = nullptr);

    SheetField* txtOutputFolder;
    QPushButton* btnSelectFolder;
    QPushButton* btnOpenFolder;
    SheetField* txtOutputName;
    SheetField* txtTitle;
    QButtonGroup* mOutputType; // by OutputTypeTag
    QToolButton* btnMore;
    SheetField* txtDescription; // these two are under "More"
    SheetField* txtKeywords;
    ProblemLabel* lblInfo;
    QProgressBar* prgBar;
    QPushButton* btnPublish;
    QPushButton* btnCancel;

private:
    void makeControls();
    void makeOutputTypes();
    void makeMore();
    void makeRest();
    void nameControls();
    void layOut();
    QBoxLayout* folderRow();
    void addMoreRows(QFormLayout& rows);
    QBoxLayout* buttonRow();
};

} // namespace leafcast
