// SPDX-License-Identifier: MIT
#pragma once

#include "base/NotificationCenter.h"
#include "templates/ui/FlashTemplateOutlineDelegate.h"

#include <QWidget>

class QAction;
class QLabel;
class QLineEdit;
class QStackedWidget;

namespace leafcast {

class PropertyChooser;
class PropertyFilter;
class PropertyHelp;
class PropertyTreeView;

/// The property editor of the main window: a filter box, the tree of the template's properties and
/// help for the selected one. Its actions belong in a window's menus too.
class PropertyPanel : public QWidget {
    Q_OBJECT

public:
    explicit PropertyPanel(QWidget* parent = nullptr);

    FlashTemplateOutlineDelegate& tmplDelegate() { return iTmplDelegate; }
    void setFlashTmpl(std::shared_ptr<FlashTemplate> flashTmpl);
    /// To be called when the template's tree, style or values have changed elsewhere.
    void reloadData();

    FlashTemplateProperty* selectedProperty() const;
    /// Shows help for the selected property; without one nothing changes. The panel does so by
    /// itself when its tree announces another selection.
    void updateTmplPropertyTip();

    QAction* undoAction() const { return iUndo; }
    QAction* redoAction() const { return iRedo; }
    QAction* resetAction() const { return iReset; }
    QAction* resetAllAction() const { return iResetAll; }
    QAction* findAction() const { return iFind; }

    QSize sizeHint() const override { return { 340, 600 }; }

private:
    QModelIndex selectedIndex() const;
    QLineEdit* makeFilterBox();
    QWidget* makeFilterRow();
    QWidget* makeTree();
    void makeHistoryActions();
    void makeRowActions();
    QAction* addRowAction(const QString& text, const QString& name, const QKeySequence& shortcut);
    void connectTree();
    void observeSelection();
    void arrangeRows();
    void updateActions();
    void valueDidChange(const FlashTemplateProperty& property);
    QString reasonForEmptiness() const;

    FlashTemplateOutlineDelegate iTmplDelegate;
    PropertyFilter* iFilter;
    PropertyTreeView* iOutlineView;
    PropertyChooser* iChooser;
    QLineEdit* iFilterBox = nullptr;
    QStackedWidget* iPages = nullptr;
    QLabel* iEmptiness = nullptr;
    QAction* iUndo = nullptr;
    QAction* iRedo = nullptr;
    QAction* iReset = nullptr;
    QAction* iResetAll = nullptr;
    QAction* iFind = nullptr;
    QAction* iChoose = nullptr;
    QAction* iClearFile = nullptr;
    PropertyHelp* iHelp = nullptr;
    NotificationCenter::Registration iTipRegistration;
};

} // namespace leafcast
