// SPDX-License-Identifier: MIT
#pragma once

#include "templates/ColorCategory.h"
#include "templates/FlashTemplate.h"
#include "templates/ui/PropertyDefaults.h"
#include "templates/ui/PropertyEdits.h"

#include <QAbstractItemModel>

namespace leafcast {

class FlashTmplCell;
class FlashTmplColorCell;
class FlashTmplFileCell;

/// The property tree of a template as a table of two columns, and all edits of it. The operations
/// take properties and the identifiers of columns ("key", "value"); the tree view reaches them
/// through the item model. A row stands for a property; the root is none. It shows the tree that
/// the template had at the last setFlashTmpl or reloadData and keeps it alive. One thread.
class FlashTemplateOutlineDelegate : public QAbstractItemModel {
    Q_OBJECT

public:
    enum Column { KeyColumn, ValueColumn, ColumnCount };
    /// The row's FlashTemplateProperty*.
    static constexpr int PropertyRole = Qt::UserRole;
    /// What a file dialog begins with; the types are those of FlashTmplFileCell::fileTypes.
    struct OpenPanel {
        QString proposedFile;
        QStringList fileTypes;
    };

    explicit FlashTemplateOutlineDelegate(QObject* parent = nullptr);

    const std::shared_ptr<FlashTemplate>& flashTmpl() const { return iFlashTmpl; }
    void setFlashTmpl(std::shared_ptr<FlashTemplate> flashTmpl);
    /// To be called when the template's tree, style or values have changed elsewhere. With another
    /// tree the history of edits ends.
    void reloadData();

    // The tree and its values
    int numberOfChildrenOfItem(const FlashTemplateProperty* item) const;
    FlashTemplateProperty* childOfItem(int index, const FlashTemplateProperty* item) const;
    bool isItemExpandable(const FlashTemplateProperty* item) const;
    QVariant objectValueForTableColumn(
        const QString& column, const FlashTemplateProperty& item) const;

    // The cells
    std::unique_ptr<FlashTmplCell> dataCellForTableColumn(
        const QString& column, FlashTemplateProperty& item) const;
    void willDisplayCell(
        FlashTmplCell& cell, const QString& column, const FlashTemplateProperty& item) const;
    /// The value's cell, ready to be drawn.
    std::unique_ptr<FlashTmplCell> displayCell(FlashTemplateProperty& item) const;

    // Edits
    /// The text that an editor's object comes to: a list's is the position of the choice, a
    /// switch's a truth value, all others are the text. Null for a choice that there is not.
    static QString textFromObject(const FlashTemplateProperty& item, const QVariant& object);
    /// True when the value has changed.
    bool setObjectValue(const QVariant& object, const QString& column, FlashTemplateProperty& item);
    void outlineViewSelectionDidChange();

    // Files and colours are chosen in a dialog: the first operation of a pair says what it begins
    // with, the second stores its outcome.
    OpenPanel onSelectFile(const FlashTmplFileCell& cell) const;
    /// No file empties the setting, deliberately. A window that asks "Cancel" doesn't call this.
    void openPanelDidEnd(FlashTmplFileCell& cell, const std::optional<QString>& chosenFile);
    RGBColor onSelectColor(const FlashTmplColorCell& cell) const;
    void colorPanelDidClose(FlashTmplColorCell& cell, const RGBColor& color);

    // Defaults and history
    bool isChanged(const FlashTemplateProperty& item) const;
    bool hasChanges() const;
    void resetToDefault(FlashTemplateProperty& item);
    void resetAllToDefaults();
    PropertyEdits& edits() { return iEdits; }

    static FlashTemplateProperty* propertyAt(const QModelIndex& index);
    QModelIndex indexOf(const FlashTemplateProperty& item, Column column) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    const FlashTemplateProperties& childrenOf(const FlashTemplateProperty* item) const;
    std::vector<PropertyChange> changesToDefaults() const;
    QVariant valueData(FlashTemplateProperty& property, int role) const;
    void announceChange(const FlashTemplateProperty& property);
    void announceAll(const QModelIndex& parent);

    std::shared_ptr<FlashTemplate> iFlashTmpl;
    FlashTemplateProperties iShown; // the top of the tree
    PropertyDefaults iDefaults;
    PropertyEdits iEdits;
};

} // namespace leafcast
