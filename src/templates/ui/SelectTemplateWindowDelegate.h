// SPDX-License-Identifier: MIT
#pragma once

#include "templates/ui/StyleGalleryModel.h"
#include "templates/ui/TemplateListModel.h"

#include <QDialog>

class QListView;
class QPushButton;

namespace leafcast {

/// The template chooser: templates at the left, the styles of the selected one as pictures. Shown
/// by open() after prepairToTmpl(); ends with 1 for OK and a double click, else with 0.
class SelectTemplateWindowDelegate : public QDialog {
    Q_OBJECT

public:
    explicit SelectTemplateWindowDelegate(QWidget* parent = nullptr);

    /// Reads the library and selects the template, whose name may be in any letter case, and the
    /// style when there is one of that name.
    void prepairToTmpl(const QString& tmplName, const QString& styleName = {});
    void reloadStylesForTmpl(const QString& tmplName);
    /// Reads the templates anew; the gallery is left as it is.
    void onRefresh();
    void onOK();
    void onCancel();
    /// Full path of the chosen style's "shot.jpg"; empty while none is selected.
    QString selectedStyle();

    const TemplateListModel& tmplList() const { return iTmplListData; }
    const StyleGalleryModel& tmplStyles() const { return iTmplStylesData; }
    int selectedItemIndex() const { return iSelectedItemIndex; }

private:
    QWidget* makeList();
    QWidget* makeGallery();
    QWidget* makeButtons();
    void tableViewSelectionDidChange();
    void cellWasDoubleClickedAtIndex(int index);
    void select(const QString& tmplName);
    void updateOK();

    TemplateListModel iTmplListData;
    TemplatesOnly iTemplates;
    StyleGalleryModel iTmplStylesData;
    QListView* iTableViewTmpls = nullptr;
    QListView* iImgBrowserView = nullptr;
    QPushButton* iOK = nullptr;
    int iSelectedItemIndex = 0;
};

} // namespace leafcast
