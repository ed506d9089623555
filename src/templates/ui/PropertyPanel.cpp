// SPDX-License-Identifier: MIT
#include "templates/ui/PropertyPanel.h"

#include "templates/TemplateNotifications.h"
#include "templates/ui/PropertyChooser.h"
#include "templates/ui/PropertyFilter.h"
#include "templates/ui/PropertyHelp.h"
#include "templates/ui/PropertyItemDelegate.h"
#include "templates/ui/PropertyTreeView.h"

#include <QAction>
#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QStackedWidget>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    constexpr int margin = 12;
    constexpr int spacing = 8;

    /// None when the program was linked without the pictures: then texts stand in for them.
    QIcon iconNamed(const QString& name)
    {
        const QString path = u":/icons/%1.svg"_s.arg(name);
        return QFile::exists(path) ? QIcon(path) : QIcon();
    }

} // namespace

PropertyPanel::PropertyPanel(QWidget* parent)
    : QWidget(parent)
    , iFilter(new PropertyFilter(this))
    , iOutlineView(new PropertyTreeView)
    , iChooser(new PropertyChooser(iTmplDelegate, *this))
{
    setObjectName(u"propertyPanel"_s);
    iFilter->setSourceModel(&iTmplDelegate);
    makeHistoryActions();
    makeRowActions();
    iHelp = new PropertyHelp(*iReset);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(makeFilterRow());
    layout->addWidget(makeTree(), 1);
    layout->addWidget(iHelp);

    connectTree();
    observeSelection();
    arrangeRows();
}

void PropertyPanel::setFlashTmpl(std::shared_ptr<FlashTemplate> flashTmpl)
{
    iTmplDelegate.setFlashTmpl(std::move(flashTmpl));
}

void PropertyPanel::reloadData()
{
    iTmplDelegate.reloadData();
}

QModelIndex PropertyPanel::selectedIndex() const
{
    return iOutlineView->selectionModel()->selectedRows().value(0);
}

FlashTemplateProperty* PropertyPanel::selectedProperty() const
{
    return FlashTemplateOutlineDelegate::propertyAt(selectedIndex());
}

void PropertyPanel::updateTmplPropertyTip()
{
    if (const auto* property = selectedProperty())
        iHelp->showProperty(*property);
}

QLineEdit* PropertyPanel::makeFilterBox()
{
    iFilterBox = new QLineEdit;
    iFilterBox->setObjectName(u"txtFilter"_s);
    iFilterBox->setAccessibleName(tr("Find a setting"));
    iFilterBox->setPlaceholderText(tr("Find a setting"));
    iFilterBox->setClearButtonEnabled(true);
    if (const QIcon icon = iconNamed(u"filter"_s); !icon.isNull())
        iFilterBox->addAction(icon, QLineEdit::LeadingPosition);
    connect(iFilterBox, &QLineEdit::textChanged, this, [this](const QString& typed) {
        iFilter->setWords(typed);
        arrangeRows();
    });
    const auto onKey = [this](Qt::Key key, const auto& action) {
        auto* shortcut = new QShortcut(QKeySequence(key), iFilterBox);
        shortcut->setContext(Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, this, action);
    };
    onKey(Qt::Key_Escape, [this] { iFilterBox->clear(); });
    onKey(Qt::Key_Down, [this] { iOutlineView->setFocus(Qt::TabFocusReason); });
    return iFilterBox;
}

QWidget* PropertyPanel::makeFilterRow()
{
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(margin, margin, margin, spacing);
    layout->setSpacing(spacing);
    layout->addWidget(makeFilterBox(), 1);

    auto* button = new QToolButton;
    button->setObjectName(u"btnResetAll"_s);
    button->setDefaultAction(iResetAll);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setAutoRaise(true);
    layout->addWidget(button);
    return row;
}

QWidget* PropertyPanel::makeTree()
{
    iOutlineView->setObjectName(u"outlineView"_s);
    iOutlineView->setAccessibleName(tr("Settings of the template"));
    iOutlineView->setModel(iFilter);
    iOutlineView->setContextMenuPolicy(Qt::ActionsContextMenu);
    iOutlineView->addActions({ iChoose, iClearFile, iReset, iResetAll, iUndo, iRedo });

    iEmptiness = new QLabel;
    iEmptiness->setObjectName(u"lblEmptiness"_s);
    iEmptiness->setAlignment(Qt::AlignCenter);
    iEmptiness->setWordWrap(true);
    iEmptiness->setForegroundRole(QPalette::PlaceholderText);

    iPages = new QStackedWidget;
    iPages->setContentsMargins(spacing, 0, spacing / 2, 0);
    iPages->addWidget(iOutlineView);
    iPages->addWidget(iEmptiness);
    return iPages;
}

void PropertyPanel::makeHistoryActions()
{
    QUndoStack& history = iTmplDelegate.edits().undoStack();
    iUndo = history.createUndoAction(this, tr("Undo"));
    iUndo->setShortcuts(QKeySequence::Undo);
    iUndo->setIcon(iconNamed(u"undo"_s));
    iRedo = history.createRedoAction(this, tr("Redo"));
    iRedo->setShortcuts(QKeySequence::Redo);
    iRedo->setIcon(iconNamed(u"redo"_s));

    iResetAll = new QAction(iconNamed(u"reset"_s), tr("Reset All to Defaults"), this);
    iResetAll->setObjectName(u"actionResetAll"_s);
    iResetAll->setIconText(tr("Reset All"));
    connect(iResetAll, &QAction::triggered, this, [this] { iTmplDelegate.resetAllToDefaults(); });

    iFind = new QAction(tr("Find a Setting"), this);
    iFind->setShortcuts(QKeySequence::Find);
    iFind->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(iFind, &QAction::triggered, this, [this] {
        iFilterBox->setFocus(Qt::ShortcutFocusReason);
        iFilterBox->selectAll();
    });
    addActions({ iUndo, iRedo, iFind });
}

QAction* PropertyPanel::addRowAction(
    const QString& text, const QString& name, const QKeySequence& shortcut)
{
    auto* action = new QAction(text, this);
    action->setObjectName(name);
    action->setShortcut(shortcut);
    action->setShortcutContext(Qt::WidgetShortcut);
    return action;
}

void PropertyPanel::makeRowActions()
{
    iChoose = addRowAction(tr("Choose…"), u"actionChoose"_s, QKeySequence(u"Alt+Down"_s));
    connect(iChoose, &QAction::triggered, this, [this] { iChooser->choose(selectedIndex()); });
    iClearFile = addRowAction(tr("No File"), u"actionClearFile"_s, QKeySequence(Qt::Key_Delete));
    connect(
        iClearFile, &QAction::triggered, this, [this] { iChooser->clearFile(selectedIndex()); });
    iReset
        = addRowAction(tr("Reset to Default"), u"actionReset"_s, QKeySequence(u"Ctrl+Backspace"_s));
    connect(iReset, &QAction::triggered, this, [this] {
        if (auto* property = selectedProperty())
            iTmplDelegate.resetToDefault(*property);
    });
}

void PropertyPanel::connectTree()
{
    auto* cells = new PropertyItemDelegate(iTmplDelegate, iOutlineView);
    iOutlineView->setItemDelegate(cells);
    connect(cells, &PropertyItemDelegate::chooserRequested, iChooser, &PropertyChooser::choose);
    // Queued, because the view is still in the click that asks for it.
    connect(
        cells, &PropertyItemDelegate::editorRequested, iOutlineView,
        [this](const QPersistentModelIndex& index) { iOutlineView->edit(index); },
        Qt::QueuedConnection);
    connect(iFilter, &QAbstractItemModel::modelReset, this, [this] {
        iHelp->clear();
        arrangeRows();
    });
    connect(iFilter, &QAbstractItemModel::dataChanged, this, [this] {
        updateActions();
        updateTmplPropertyTip();
    });
    connect(&iTmplDelegate.edits(), &PropertyEdits::valueChanged, this,
        [this](const FlashTemplateProperty* property) { valueDidChange(*property); });
}

void PropertyPanel::observeSelection()
{
    connect(iOutlineView->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        updateActions();
        iTmplDelegate.outlineViewSelectionDidChange();
    });
    iTipRegistration = NotificationCenter::defaultCenter().addObserver(
        UpdateFlashTmplProTipNotification, [this](const Notification& notification) {
            const auto* sender = notification.userInfo.value(notificationObject).value<QObject*>();
            if (sender == &iTmplDelegate)
                updateTmplPropertyTip();
        });
}

void PropertyPanel::arrangeRows()
{
    iOutlineView->arrangeRows();
    const QString reason = reasonForEmptiness();
    iEmptiness->setText(reason);
    iPages->setCurrentIndex(reason.isEmpty() ? 0 : 1);
    updateActions();
}

QString PropertyPanel::reasonForEmptiness() const
{
    if (iFilter->rowCount() > 0)
        return {};
    if (!iTmplDelegate.flashTmpl())
        return tr("No template is open.");
    if (iTmplDelegate.rowCount() == 0)
        return tr("This template has no settings.");
    return tr("No setting matches “%1”.").arg(iFilterBox->text().trimmed());
}

void PropertyPanel::updateActions()
{
    const QModelIndex index = selectedIndex();
    const auto* property = selectedProperty();
    iChoose->setEnabled(PropertyChooser::canChoose(index));
    iClearFile->setEnabled(PropertyChooser::canClearFile(index));
    iReset->setEnabled(property && iTmplDelegate.isChanged(*property));
    iResetAll->setEnabled(iTmplDelegate.hasChanges());
}

void PropertyPanel::valueDidChange(const FlashTemplateProperty& property)
{
    const QModelIndex row
        = iTmplDelegate.indexOf(property, FlashTemplateOutlineDelegate::KeyColumn);
    iOutlineView->scrollTo(iFilter->mapFromSource(row));
}

} // namespace leafcast
