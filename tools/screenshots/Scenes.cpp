// SPDX-License-Identifier: MIT
#include "Scenes.h"

#include "app/ApplyItem.h"
#include "pages/ImportNotifications.h"
#include "publish/PublishNotifications.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QToolButton>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    constexpr int openingSpread = 4;

    void click(const Stage& stage, const QString& name)
    {
        stage.control<QAbstractButton>(name, stage.sheet()).click();
    }

    void type(const Stage& stage, const QString& name, const QString& text)
    {
        stage.control<QLineEdit>(name, stage.sheet()).setText(text);
    }

    void closeSheet(const Stage& stage)
    {
        stage.sheet().reject();
        stage.waitForNoSheet();
    }

    /// The row of a property by its title, and the first that it finds after that in the tree.
    QModelIndex rowOf(const QTreeView& tree, const QStringList& path)
    {
        QModelIndex row = tree.model()->index(0, 0);
        for (const QString& title : path)
            row = tree.model()
                      ->match(row, Qt::DisplayRole, title, 1, Qt::MatchExactly | Qt::MatchRecursive)
                      .value(0);
        if (!row.isValid())
            Stage::fail(u"there is no setting "_s + path.join(u'/'));
        return row;
    }

    void select(const Stage& stage, const QStringList& path)
    {
        auto& tree = stage.control<QTreeView>(u"outlineView"_s, stage.window());
        tree.setFocus();
        tree.setCurrentIndex(rowOf(tree, path));
    }

    void change(const Stage& stage, const QStringList& path, const QVariant& value)
    {
        auto& tree = stage.control<QTreeView>(u"outlineView"_s, stage.window());
        select(stage, path);
        tree.model()->setData(rowOf(tree, path).siblingAtColumn(1), value);
    }

    /// The preview has read the text of the pages; without what it kept a publication reads it too.
    void forgetKeptTexts(const FlashPageSource& pages)
    {
        const QDir work = QFileInfo(pages.normalPages().front()->pageFilePath()).dir();
        for (const QFileInfo& kept :
            work.entryInfoList({ u".reader-data-*"_s }, QDir::Dirs | QDir::Hidden))
            QDir(kept.filePath()).removeRecursively();
    }

    void photographMenu(Stage& stage, const QAction& title)
    {
        QMenu& menu = *title.menu();
        const QMenuBar& bar = *stage.window().menuBar();
        const QRect place = bar.actionGeometry(const_cast<QAction*>(&title));
        menu.popup(bar.mapToGlobal(place.bottomLeft()));
        menu.setActiveAction(menu.actions().constFirst());
        stage.photograph(u"menu-"_s + QString(title.text()).remove(u'&').toLower());
        menu.close();
    }

} // namespace

void playStart(Stage& stage)
{
    stage.photograph(u"start"_s);
    select(stage, { u"Background"_s, u"Colour"_s });
    stage.photograph(u"setting-selected"_s);
    stage.control<QAction>(u"actionChoose"_s, stage.window()).trigger();
    stage.photograph(u"colour"_s);
    closeSheet(stage);
    change(stage, { u"Background"_s, u"Colour"_s }, u"0x2f4a43"_s);
    change(stage, { u"Page edges"_s }, false);
    stage.photograph(u"changes-pending"_s);
    stage.waitForNextBook([&] { stage.window().applyItem().trigger(); });
    stage.waitForBook(1);
    stage.photograph(u"changes-applied"_s);
    auto& filter = stage.control<QLineEdit>(u"txtFilter"_s, stage.window());
    filter.setText(u"colour"_s);
    stage.photograph(u"setting-found"_s);
    filter.setText(u"gravity"_s);
    stage.photograph(u"no-setting-found"_s);
    filter.clear();
    stage.control<QAbstractButton>(u"btnResetAll"_s, stage.window()).click();
    stage.waitForNextBook([&] { stage.window().applyItem().trigger(); });
    stage.waitForBook(1);
}

void playImport(Stage& stage, const Material& material)
{
    const auto choose = [&stage](const QString& file) { type(stage, u"txtImportFile"_s, file); };
    const auto info
        = [&stage] { return stage.control<QLabel>(u"lblInfo"_s, stage.sheet()).text(); };
    stage.window().importPDF->trigger();
    stage.photograph(u"import-empty"_s);
    stage.control<QPushButton>(u"btnBrowseImages"_s, stage.sheet()).setFocus(Qt::TabFocusReason);
    stage.photograph(u"import-by-keyboard"_s);
    choose(material.locked);
    stage.waitFor(u"the question for the password"_s,
        [&] { return stage.control<QLineEdit>(u"txtPassword"_s, stage.sheet()).isVisible(); });
    type(stage, u"txtPassword"_s, u"acorn"_s);
    click(stage, u"btnOK"_s);
    stage.waitFor(
        u"the wrong password to be told"_s, [&] { return info().contains(u"password"_s); });
    stage.photograph(u"import-locked"_s);
    choose(material.damaged);
    click(stage, u"btnOK"_s);
    stage.waitFor(u"the failure"_s, [&] { return info().contains(u"PDF"_s); });
    stage.photograph(u"import-failed"_s);
    choose(material.magazine);
    click(stage, u"optPageRange"_s);
    type(stage, u"txtPageRange"_s, u"1-12, 20"_s);
    stage.waitFor(u"the wrong range to be told"_s, [&] {
        return stage.control<QLabel>(u"lblPageRange"_s, stage.sheet()).text().contains(u"16"_s);
    });
    stage.photograph(u"import-wrong-range"_s);
    click(stage, u"optAllPages"_s);
    for (const QString& box : { u"btnImportLinks"_s, u"btnImportBookMark"_s })
        stage.control<QCheckBox>(box, stage.sheet()).setChecked(true);
    stage.photograph(u"import-idle"_s);
    {
        const Hold hold(ImportProgressInfoMSG, 9);
        click(stage, u"btnOK"_s);
        stage.waitFor(u"page 9"_s, [&] { return hold.isHolding() && info().contains(u"9/"_s); });
        stage.photograph(u"import-importing"_s);
    }
    stage.waitForNextBook([] {});
    stage.waitForNoSheet();
    stage.waitForBook(1);
    stage.openPage(openingSpread);
    stage.photograph(u"imported"_s);
}

void playPublish(Stage& stage, const Material& material)
{
    stage.window().exportFlipBook->trigger();
    type(stage, u"txtOutputFolder"_s, material.books + u"/hornbeam-7"_s);
    type(stage, u"txtOutputName"_s, u"index"_s);
    type(stage, u"txtTitle"_s, u"Hornbeam, the autumn issue"_s);
    stage.photograph(u"publish-idle"_s);
    click(stage, u"btnMore"_s);
    stage.photograph(u"publish-more"_s);
    click(stage, u"btnMore"_s);
    type(stage, u"txtOutputFolder"_s, material.magazine + u"/hornbeam"_s);
    click(stage, u"btnPublish"_s);
    stage.photograph(u"publish-failed"_s);
    type(stage, u"txtOutputFolder"_s, material.photos);
    click(stage, u"btnPublish"_s);
    stage.waitFor(u"the question whether to replace"_s,
        [&] { return qobject_cast<QMessageBox*>(&stage.sheet()) != nullptr; });
    stage.photograph(u"publish-replace"_s);
    stage.sheet().reject();
    stage.waitFor(u"the question to go"_s,
        [&] { return qobject_cast<QMessageBox*>(&stage.sheet()) == nullptr; });
    type(stage, u"txtOutputFolder"_s, material.books + u"/hornbeam-7"_s);
    forgetKeptTexts(*stage.book());
    {
        const Hold hold(ReaderDataProgressMSG, 11);
        click(stage, u"btnPublish"_s);
        stage.waitFor(u"page 11"_s, [&] {
            return hold.isHolding()
                && stage.control<QLabel>(u"lblInfo"_s, stage.sheet()).text().contains(u"11/"_s);
        });
        stage.photograph(u"publish-publishing"_s);
    }
    stage.waitFor(u"the question whether to open"_s,
        [&] { return qobject_cast<QMessageBox*>(&stage.sheet()) != nullptr; });
    stage.photograph(u"publish-done"_s);
    stage.sheet().reject();
    stage.waitForNoSheet();
}

void playOthers(Stage& stage)
{
    stage.window().selectTemplate->trigger();
    stage.photograph(u"template-chooser"_s);
    auto& templates = stage.control<QListView>(u"iTableViewTmpls"_s, stage.sheet());
    templates.setCurrentIndex(templates.model()->index(2, 0));
    stage.photograph(u"template-chooser-slides"_s);
    closeSheet(stage);
    stage.window().previewWindow->trigger();
    stage.waitFor(u"the address"_s,
        [&] { return !stage.control<QLabel>(u"lblwebsite"_s, stage.sheet()).text().isEmpty(); });
    stage.photograph(u"tablet"_s);
    closeSheet(stage);
    for (const QAction* title : stage.window().menuBar()->actions().mid(0, 2))
        photographMenu(stage, *title);
    stage.window().openAbout->trigger();
    stage.photograph(u"about"_s);
    closeSheet(stage);
}

} // namespace leafcast
