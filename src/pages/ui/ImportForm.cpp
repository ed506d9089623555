// SPDX-License-Identifier: MIT
#include "pages/ui/ImportForm.h"

#include "pages/ImportQuality.h"
#include "widgets/ProblemLabel.h"
#include "widgets/SheetField.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    constexpr int spacing = 8;
    constexpr int fieldColumn = 1;
    constexpr int fieldWidth = 320;

} // namespace

ImportForm::ImportForm(QWidget* parent)
    : QWidget(parent)
{
    makeControls();
    nameControls();
    layOut();
    showPassword(false);
    lblImages->hide();
    lblPageRange->hide();
}

void ImportForm::makeControls()
{
    txtImportFile = new SheetField(SheetField::Elide::Middle, this);
    txtImportFile->setPlaceholderText(tr("Choose a PDF, or drop one here"));
    txtImportFile->setMinimumWidth(fieldWidth);
    btnBrowse = new QPushButton(tr("&Browse…"), this);
    btnBrowseImages = new QPushButton(tr("&Images…"), this);
    btnBrowseImages->setToolTip(tr("Make the book from picture files instead"));
    btnOpenFile = new QPushButton(tr("&Open"), this);
    btnOpenFile->setToolTip(tr("Look at the file in another program"));
    lblImages = new QLabel(this);
    txtPassword = new SheetField(SheetField::Elide::No, this);
    txtPassword->setEchoMode(QLineEdit::Password);
    makePageControls();
    lblInfo = new ProblemLabel(this);
    prgBar = new QProgressBar(this);
    prgBar->setTextVisible(false);
    btnCancel = new QPushButton(tr("Cancel"), this);
    btnOK = new QPushButton(tr("Import"), this);
    btnOK->setDefault(true);
    for (QPushButton* button : { btnBrowse, btnBrowseImages, btnOpenFile, btnCancel })
        button->setAutoDefault(false);
}

void ImportForm::makePageControls()
{
    makePageRangeType();
    txtPageRange = new SheetField(SheetField::Elide::No, this);
    txtPageRange->setPlaceholderText(tr("1-3,7"));
    lblPageRange = new ProblemLabel(this);
    importQuality = new QComboBox(this);
    const QStringList titles{ tr("Best"), tr("High"), tr("Medium"), tr("Low"), tr("Smallest") };
    Q_ASSERT(titles.size() == qsizetype{ importQualities.size() });
    importQuality->addItems(titles);
    btnImportLinks = new QCheckBox(tr("Import &links"), this);
    btnImportBookMark = new QCheckBox(tr("Import boo&kmarks as table of contents"), this);
}

void ImportForm::makePageRangeType()
{
    pageRangeType = new QButtonGroup(this);
    auto* all = new QRadioButton(tr("&All"), this);
    auto* range = new QRadioButton(tr("&Range:"), this);
    all->setObjectName(u"optAllPages"_s);
    range->setObjectName(u"optPageRange"_s);
    pageRangeType->addButton(all, allPages);
    pageRangeType->addButton(range, typedRange);
    all->setChecked(true);
}

// Tests and assistive tools find the controls by these.
void ImportForm::nameControls()
{
    txtImportFile->setObjectName(u"txtImportFile"_s);
    btnBrowse->setObjectName(u"btnBrowse"_s);
    btnBrowseImages->setObjectName(u"btnBrowseImages"_s);
    btnOpenFile->setObjectName(u"btnOpenFile"_s);
    lblImages->setObjectName(u"lblImages"_s);
    txtPassword->setObjectName(u"txtPassword"_s);
    pageRangeType->setObjectName(u"pageRangeType"_s);
    txtPageRange->setObjectName(u"txtPageRange"_s);
    txtPageRange->setAccessibleName(tr("Page range"));
    lblPageRange->setObjectName(u"lblPageRange"_s);
    importQuality->setObjectName(u"importQuality"_s);
    btnImportLinks->setObjectName(u"btnImportLinks"_s);
    btnImportBookMark->setObjectName(u"btnImportBookMark"_s);
    lblInfo->setObjectName(u"lblInfo"_s);
    prgBar->setObjectName(u"prgBar"_s);
    prgBar->setAccessibleName(tr("Progress of the import"));
    btnOK->setObjectName(u"btnOK"_s);
    btnCancel->setObjectName(u"btnCancel"_s);
}

void ImportForm::layOut()
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(spacing);
    grid->setColumnStretch(fieldColumn, 1);
    addFileRows(*grid);
    addPageRows(*grid);
    const int firstOfRest = grid->rowCount();
    grid->addWidget(btnImportLinks, firstOfRest, fieldColumn, 1, -1);
    grid->addWidget(btnImportBookMark, firstOfRest + 1, fieldColumn, 1, -1);
    grid->addWidget(lblInfo, firstOfRest + 2, 0, 1, -1);
    grid->addWidget(prgBar, firstOfRest + 3, 0, 1, -1);
    grid->setRowStretch(firstOfRest + 4, 1);
    grid->setRowMinimumHeight(firstOfRest + 4, spacing);
    grid->addLayout(buttonRow(), firstOfRest + 5, 0, 1, -1);
}

void ImportForm::addFileRows(QGridLayout& grid)
{
    addLabel(grid, tr("&File:"), txtImportFile);
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : { btnBrowse, btnBrowseImages, btnOpenFile })
        buttons->addWidget(button);
    grid.addLayout(buttons, 0, fieldColumn + 1);
    grid.addWidget(lblImages, grid.rowCount(), fieldColumn, 1, -1);
    lblPassword = addLabel(grid, tr("Pass&word:"), txtPassword);
}

void ImportForm::addPageRows(QGridLayout& grid)
{
    const int row = grid.rowCount();
    grid.addWidget(new QLabel(tr("Pages:"), this), row, 0, Qt::AlignRight | Qt::AlignVCenter);
    grid.addWidget(pageRangeType->button(allPages), row, fieldColumn, 1, -1);
    auto* typed = new QHBoxLayout;
    typed->addWidget(pageRangeType->button(typedRange));
    typed->addWidget(txtPageRange);
    grid.addLayout(typed, row + 1, fieldColumn);
    grid.addWidget(lblPageRange, row + 2, fieldColumn, 1, -1);
    addLabel(grid, tr("&Quality:"), importQuality);
}

QBoxLayout* ImportForm::buttonRow()
{
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(btnCancel);
    row->addWidget(btnOK);
    return row;
}

QLabel* ImportForm::addLabel(QGridLayout& grid, const QString& text, QWidget* buddy)
{
    auto* label = new QLabel(text, this);
    label->setBuddy(buddy);
    const int row = grid.count() == 0 ? 0 : grid.rowCount();
    grid.addWidget(label, row, 0, Qt::AlignRight | Qt::AlignVCenter);
    grid.addWidget(buddy, row, fieldColumn);
    return label;
}

void ImportForm::showPassword(bool isShown)
{
    lblPassword->setVisible(isShown);
    txtPassword->setVisible(isShown);
}

} // namespace leafcast
