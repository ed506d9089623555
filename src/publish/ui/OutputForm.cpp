// SPDX-License-Identifier: MIT
#include "publish/ui/OutputForm.h"

#include "publish/HTMLConfigInfo.h"
#include "widgets/ProblemLabel.h"
#include "widgets/SheetField.h"

#include <QFormLayout>
#include <QLabel>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    constexpr int spacing = 8;
    constexpr int fieldWidth = 360;

    QFormLayout* newRows()
    {
        auto* rows = new QFormLayout;
        rows->setContentsMargins(0, 0, 0, 0);
        rows->setSpacing(spacing);
        rows->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
        rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
        return rows;
    }

    QLabel* labelFor(QWidget* buddy, const QString& text)
    {
        auto* label = new QLabel(text);
        label->setBuddy(buddy);
        return label;
    }

} // namespace

OutputForm::OutputForm(QWidget* parent)
    : QWidget(parent)
{
    makeControls();
    makeMore();
    makeRest();
    nameControls();
    layOut();
    lblInfo->hide();
    prgBar->hide();
}

void OutputForm::makeControls()
{
    makeOutputTypes();
    txtOutputFolder = new SheetField(SheetField::Elide::Middle, this);
    txtOutputFolder->setMinimumWidth(fieldWidth);
    btnSelectFolder = new QPushButton(tr("&Choose…"), this);
    btnOpenFolder = new QPushButton(tr("&Show"), this);
    btnOpenFolder->setToolTip(tr("Show the folder in the file manager"));
    txtOutputName = new SheetField(SheetField::Elide::No, this);
    txtOutputName->setPlaceholderText(tr("Without extension, such as index"));
    txtTitle = new SheetField(SheetField::Elide::No, this);
}

void OutputForm::makeOutputTypes()
{
    mOutputType = new QButtonGroup(this);
    auto* folder = new QRadioButton(tr("A folder with a page that any browser opens"), this);
    auto* package = new QRadioButton(tr("A package that opens by a double click"), this);
    folder->setObjectName(u"optFolder"_s);
    package->setObjectName(u"optPackage"_s);
    folder->setChecked(true);
    mOutputType->addButton(folder, htmlFolder);
    mOutputType->addButton(package, desktopPackage);
}

void OutputForm::makeMore()
{
    const HTMLConfigInfo defaults;
    btnMore = new QToolButton(this);
    btnMore->setText(tr("&More"));
    btnMore->setCheckable(true);
    btnMore->setAutoRaise(true);
    btnMore->setArrowType(Qt::RightArrow);
    btnMore->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    btnMore->setToolTip(tr("What the page says to search engines, and where it is shared"));
    txtDescription = new SheetField(SheetField::Elide::No, this);
    txtDescription->setPlaceholderText(defaults.HTMLDescription());
    txtKeywords = new SheetField(SheetField::Elide::No, this);
    txtKeywords->setPlaceholderText(defaults.HTMLKeywords());
}

void OutputForm::makeRest()
{
    lblInfo = new ProblemLabel(this);
    prgBar = new QProgressBar(this);
    prgBar->setTextVisible(false);
    btnCancel = new QPushButton(tr("Cancel"), this);
    btnPublish = new QPushButton(tr("Publish"), this);
    btnPublish->setDefault(true);
    for (QPushButton* button : { btnSelectFolder, btnOpenFolder, btnCancel })
        button->setAutoDefault(false);
}

// Tests and assistive tools find the controls by these.
void OutputForm::nameControls()
{
    txtOutputFolder->setObjectName(u"txtOutputFolder"_s);
    btnSelectFolder->setObjectName(u"btnSelectFolder"_s);
    btnOpenFolder->setObjectName(u"btnOpenFolder"_s);
    txtOutputName->setObjectName(u"txtOutputName"_s);
    txtTitle->setObjectName(u"txtTitle"_s);
    mOutputType->setObjectName(u"mOutputType"_s);
    btnMore->setObjectName(u"btnMore"_s);
    txtDescription->setObjectName(u"txtDescription"_s);
    txtKeywords->setObjectName(u"txtKeywords"_s);
    lblInfo->setObjectName(u"lblInfo"_s);
    prgBar->setObjectName(u"prgBar"_s);
    prgBar->setAccessibleName(tr("Progress of the publication"));
    btnPublish->setObjectName(u"btnPublish"_s);
    btnCancel->setObjectName(u"btnCancel"_s);
}

void OutputForm::layOut()
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(spacing);
    auto* rows = newRows();
    auto* folder = mOutputType->button(htmlFolder);
    rows->addRow(labelFor(folder, tr("Publish &as:")), folder);
    rows->addRow(QString(), mOutputType->button(desktopPackage));
    rows->addRow(labelFor(txtOutputFolder, tr("&Folder:")), folderRow());
    rows->addRow(tr("&Name:"), txtOutputName);
    rows->addRow(tr("&Title:"), txtTitle);
    addMoreRows(*rows);
    column->addLayout(rows);
    column->addWidget(lblInfo);
    column->addWidget(prgBar);
    column->addSpacing(spacing);
    column->addStretch();
    column->addLayout(buttonRow());
}

QBoxLayout* OutputForm::folderRow()
{
    auto* row = new QHBoxLayout;
    row->addWidget(txtOutputFolder);
    row->addWidget(btnSelectFolder);
    row->addWidget(btnOpenFolder);
    return row;
}

void OutputForm::addMoreRows(QFormLayout& rows)
{
    rows.addRow(QString(), btnMore);
    rows.addRow(tr("&Description:"), txtDescription);
    rows.addRow(tr("&Keywords:"), txtKeywords);
    const auto show = [this, &rows](bool isOpen) {
        rows.setRowVisible(txtDescription, isOpen);
        rows.setRowVisible(txtKeywords, isOpen);
        btnMore->setArrowType(isOpen ? Qt::DownArrow : Qt::RightArrow);
    };
    show(false);
    connect(btnMore, &QToolButton::toggled, this, show);
}

QBoxLayout* OutputForm::buttonRow()
{
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(btnCancel);
    row->addWidget(btnPublish);
    return row;
}

} // namespace leafcast
