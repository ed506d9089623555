// SPDX-License-Identifier: MIT
#pragma once

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QWidget>

class QBoxLayout;
class QGridLayout;

namespace leafcast {

class ProblemLabel;
class SheetField;

/// The controls of the import sheet, laid out; each has its member's name as object name. What they
/// do is the sheet's affair.
class ImportForm : public QWidget {
    Q_OBJECT

public:
    enum PageRangeTag { allPages = 0, typedRange = 1 };

    explicit ImportForm(QWidget* parent = nullptr);

    SheetField* txtImportFile;
    QPushButton* btnBrowse;
    QPushButton* btnBrowseImages;
    QPushButton* btnOpenFile;
    QLabel* lblImages; // how many images were chosen
    QLabel* lblPassword;
    SheetField* txtPassword; // hidden until the PDF turns out to be locked
    QButtonGroup* pageRangeType; // by PageRangeTag
    SheetField* txtPageRange;
    ProblemLabel* lblPageRange;
    QComboBox* importQuality;
    QCheckBox* btnImportLinks;
    QCheckBox* btnImportBookMark;
    ProblemLabel* lblInfo;
    QProgressBar* prgBar;
    QPushButton* btnOK;
    QPushButton* btnCancel;

    void showPassword(bool isShown);

private:
    void makeControls();
    void makePageControls();
    void makePageRangeType();
    void nameControls();
    void layOut();
    void addFileRows(QGridLayout& grid);
    void addPageRows(QGridLayout& grid);
    QBoxLayout* buttonRow();
    QLabel* addLabel(QGridLayout& grid, const QString& text, QWidget* buddy);
};

} // namespace leafcast
