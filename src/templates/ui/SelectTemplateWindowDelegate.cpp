// SPDX-License-Identifier: MIT
#include "templates/ui/SelectTemplateWindowDelegate.h"

#include "templates/ui/SelectTmplItemCell.h"
#include "templates/ui/StyleCell.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    constexpr int margin = 16;
    constexpr int spacing = 8;
    constexpr int listWidth = 170;
    constexpr QSize cellGap{ 16, 40 };

    QLabel* labelFor(QWidget* view, const QString& text)
    {
        auto* label = new QLabel(text);
        label->setBuddy(view);
        return label;
    }

} // namespace

SelectTemplateWindowDelegate::SelectTemplateWindowDelegate(QWidget* parent)
    : QDialog(parent)
{
    setWindowTitle(tr("Template and Style"));
    setWindowModality(Qt::WindowModal);
    iTemplates.setSourceModel(&iTmplListData);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(margin, margin, margin, margin);
    grid->setSpacing(spacing);
    QWidget* list = makeList();
    QWidget* gallery = makeGallery();
    grid->addWidget(labelFor(list, tr("&Template")), 0, 0);
    grid->addWidget(labelFor(gallery, tr("&Style")), 0, 1);
    grid->addWidget(list, 1, 0);
    grid->addWidget(gallery, 1, 1);
    grid->addWidget(makeButtons(), 2, 0, 1, 2);
    grid->setColumnStretch(1, 1);
    resize(listWidth + 3 * (StyleGalleryModel::pictureSize.width() + cellGap.width()) + 70, 640);
    updateOK();
}

QWidget* SelectTemplateWindowDelegate::makeList()
{
    iTableViewTmpls = new QListView;
    iTableViewTmpls->setObjectName(u"iTableViewTmpls"_s);
    iTableViewTmpls->setModel(&iTemplates);
    iTableViewTmpls->setItemDelegate(new SelectTmplItemCell(iTableViewTmpls));
    iTableViewTmpls->setFixedWidth(listWidth);
    connect(iTableViewTmpls->selectionModel(), &QItemSelectionModel::selectionChanged, this,
        &SelectTemplateWindowDelegate::tableViewSelectionDidChange);
    return iTableViewTmpls;
}

QWidget* SelectTemplateWindowDelegate::makeGallery()
{
    iImgBrowserView = new QListView;
    iImgBrowserView->setObjectName(u"iImgBrowserView"_s);
    iImgBrowserView->setModel(&iTmplStylesData);
    iImgBrowserView->setItemDelegate(new StyleCell(iImgBrowserView));
    iImgBrowserView->setViewMode(QListView::IconMode);
    iImgBrowserView->setResizeMode(QListView::Adjust);
    iImgBrowserView->setMovement(QListView::Static);
    iImgBrowserView->setUniformItemSizes(true);
    iImgBrowserView->setIconSize(StyleGalleryModel::pictureSize);
    iImgBrowserView->setGridSize(StyleGalleryModel::pictureSize + cellGap);
    connect(iImgBrowserView->selectionModel(), &QItemSelectionModel::selectionChanged, this,
        &SelectTemplateWindowDelegate::updateOK);
    connect(iImgBrowserView, &QListView::doubleClicked, this,
        [this](const QModelIndex& index) { cellWasDoubleClickedAtIndex(index.row()); });
    return iImgBrowserView;
}

QWidget* SelectTemplateWindowDelegate::makeButtons()
{
    auto* box = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    iOK = box->button(QDialogButtonBox::Ok);
    iOK->setObjectName(u"btnOK"_s);
    box->button(QDialogButtonBox::Cancel)->setObjectName(u"btnCancel"_s);
    QPushButton* refresh = box->addButton(tr("&Refresh"), QDialogButtonBox::ResetRole);
    refresh->setObjectName(u"btnRefresh"_s);
    refresh->setToolTip(tr("Look for templates that were added"));
    connect(refresh, &QPushButton::clicked, this, &SelectTemplateWindowDelegate::onRefresh);
    connect(box, &QDialogButtonBox::accepted, this, &SelectTemplateWindowDelegate::onOK);
    connect(box, &QDialogButtonBox::rejected, this, &SelectTemplateWindowDelegate::onCancel);
    return box;
}

void SelectTemplateWindowDelegate::prepairToTmpl(const QString& tmplName, const QString& styleName)
{
    iTmplListData.reloadTmplList();
    select(tmplName);
    reloadStylesForTmpl(tmplName);
    const int row = iTmplStylesData.rowOf(styleName);
    if (row >= 0)
        iImgBrowserView->setCurrentIndex(iTmplStylesData.index(row));
}

void SelectTemplateWindowDelegate::select(const QString& tmplName)
{
    const int row = iTmplListData.rowOf(tmplName);
    if (row >= 0)
        iTableViewTmpls->setCurrentIndex(iTemplates.mapFromSource(iTmplListData.index(row)));
}

void SelectTemplateWindowDelegate::reloadStylesForTmpl(const QString& tmplName)
{
    iTmplStylesData.reloadStylesForTmpl(tmplName);
    updateOK();
}

void SelectTemplateWindowDelegate::tableViewSelectionDidChange()
{
    const QModelIndexList selected = iTableViewTmpls->selectionModel()->selectedIndexes();
    if (!selected.isEmpty())
        reloadStylesForTmpl(selected.first().data().toString());
}

void SelectTemplateWindowDelegate::cellWasDoubleClickedAtIndex(int index)
{
    iSelectedItemIndex = index;
    done(1);
}

void SelectTemplateWindowDelegate::onRefresh()
{
    const QString name = iTableViewTmpls->currentIndex().data().toString();
    const QSignalBlocker silent(iTableViewTmpls->selectionModel());
    iTmplListData.reloadTmplList();
    select(name);
}

void SelectTemplateWindowDelegate::onOK()
{
    done(1);
}

void SelectTemplateWindowDelegate::onCancel()
{
    done(0);
}

QString SelectTemplateWindowDelegate::selectedStyle()
{
    const QModelIndexList selected = iImgBrowserView->selectionModel()->selectedIndexes();
    if (selected.isEmpty())
        return {};
    iSelectedItemIndex = selected.first().row();
    return iTmplStylesData.items()[size_t(iSelectedItemIndex)].imageUID();
}

void SelectTemplateWindowDelegate::updateOK()
{
    if (iOK)
        iOK->setEnabled(iImgBrowserView->selectionModel()->hasSelection());
}

} // namespace leafcast
