// SPDX-License-Identifier: MIT
#include "Hands.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>
#include <QScreen>
#include <QTest>
#include <QTreeView>
#include <QWebEngineView>
#include <utility>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    constexpr int shareOfColour = 20; // one part in so many
    constexpr int sampleStep = 4;

    QList<QObject*> objectsNamed(const QString& name)
    {
        QList<QObject*> found;
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->objectName() == name)
                found.append(window);
            found.append(window->findChildren<QObject*>(name));
        }
        return found;
    }

    bool isUsable(const QWidget& widget)
    {
        const QWidget* sheet = QApplication::activeModalWidget();
        return widget.isVisible() && widget.isEnabled() && (!sheet || widget.window() == sheet);
    }

    QAction* commandNamed(const QString& name)
    {
        for (QObject* object : objectsNamed(name))
            if (auto* action = qobject_cast<QAction*>(object))
                return action;
        return nullptr;
    }

    QMainWindow* mainWindow()
    {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* main = qobject_cast<QMainWindow*>(window); main && main->isVisible())
                return main;
        return nullptr;
    }

    /// The preview, which may lie behind a sheet.
    QWebEngineView* preview()
    {
        for (QObject* object : objectsNamed(u"webView"_s))
            if (auto* view = qobject_cast<QWebEngineView*>(object); view && view->isVisible())
                return view;
        return nullptr;
    }

    /// The titles on the way to the row, as in "Background/Colour".
    QModelIndex rowAt(const QTreeView& tree, const QString& path)
    {
        QModelIndex row;
        for (const QString& title : path.split(u'/')) {
            const QModelIndex first = tree.model()->index(0, 0, row);
            row = tree.model()->match(first, Qt::DisplayRole, title, 1, Qt::MatchExactly).value(0);
        }
        return row;
    }

    bool shows(const QWidget& widget, QRgb colour)
    {
        const QRect place(widget.mapToGlobal(QPoint()), widget.size());
        const QImage seen = widget.screen()
                                ->grabWindow(0, place.x(), place.y(), place.width(), place.height())
                                .toImage()
                                .convertToFormat(QImage::Format_RGB32);
        int hits = 0;
        for (int y = 0; y < seen.height(); y += sampleStep)
            for (int x = 0; x < seen.width(); x += sampleStep)
                hits += (seen.pixel(x, y) & RGB_MASK) == (colour & RGB_MASK) ? 1 : 0;
        const int samples = seen.width() * seen.height() / (sampleStep * sampleStep);
        return hits > 0 && hits * shareOfColour >= samples;
    }

} // namespace

std::optional<QJsonObject> Hands::attempt(const QJsonObject& command)
{
    using Doing = Outcome (Hands::*)(const QJsonObject&);
    static const QHash<QString, Doing> all = { { u"click"_s, &Hands::click },
        { u"type"_s, &Hands::type }, { u"select"_s, &Hands::select }, { u"edit"_s, &Hands::edit },
        { u"wait"_s, &Hands::wait }, { u"script"_s, &Hands::script }, { u"see"_s, &Hands::see },
        { u"loads"_s, &Hands::loads }, { u"quit"_s, &Hands::quit } };
    const auto doing = all.find(command[u"do"].toString());
    if (doing == all.end())
        return QJsonObject{ { u"error"_s, u"there is no such command"_s } };
    return (this->**doing)(command);
}

Hands::Outcome Hands::obstacle(const QString& reason)
{
    iObstacle = reason;
    return std::nullopt;
}

QWidget* Hands::usable(const QString& name)
{
    for (QObject* object : objectsNamed(name)) {
        auto* widget = qobject_cast<QWidget*>(object);
        if (widget && isUsable(*widget))
            return widget;
    }
    obstacle(u"nothing named %1 can be used"_s.arg(name));
    return nullptr;
}

Hands::Outcome Hands::click(const QJsonObject& command)
{
    const QString name = command[u"name"].toString();
    if (QAction* action = commandNamed(name)) {
        if (QApplication::activeModalWidget() || !action->isEnabled())
            return obstacle(u"the command %1 can't be used"_s.arg(name));
        action->trigger();
        return QJsonObject();
    }
    QWidget* widget = usable(name);
    if (!widget)
        return std::nullopt;
    if (command.contains(u"button"_s))
        return clickButton(*widget, command[u"button"].toString());
    QTest::mouseClick(widget, Qt::LeftButton);
    return QJsonObject();
}

Hands::Outcome Hands::clickButton(QWidget& box, const QString& text)
{
    for (auto* button : box.findChildren<QAbstractButton*>())
        if (button->text().remove(u'&') == text && isUsable(*button)) {
            QTest::mouseClick(button, Qt::LeftButton);
            return QJsonObject();
        }
    return obstacle(u"there is no button %1"_s.arg(text));
}

Hands::Outcome Hands::type(const QJsonObject& command)
{
    auto* field = qobject_cast<QLineEdit*>(usable(command[u"name"].toString()));
    if (!field)
        return std::nullopt;
    field->selectAll();
    QTest::keyClicks(field, command[u"text"].toString());
    return QJsonObject();
}

Hands::Outcome Hands::select(const QJsonObject& command)
{
    auto* tree = qobject_cast<QTreeView*>(usable(u"outlineView"_s));
    if (!tree)
        return std::nullopt;
    const QModelIndex row = rowAt(*tree, command[u"row"].toString());
    if (!row.isValid())
        return obstacle(u"the tree has no such row"_s);
    tree->setCurrentIndex(row);
    return QJsonObject();
}

Hands::Outcome Hands::edit(const QJsonObject& command)
{
    if (!select(command))
        return std::nullopt;
    auto* tree = qobject_cast<QTreeView*>(usable(u"outlineView"_s));
    QTest::keyClick(tree, Qt::Key_F2);
    auto* editor = tree->findChild<QLineEdit*>(u"propertyEditor"_s);
    if (!editor)
        return obstacle(u"the row has no field"_s);
    editor->selectAll();
    QTest::keyClicks(editor, command[u"text"].toString());
    QTest::keyClick(editor, Qt::Key_Return);
    return QJsonObject();
}

Hands::Outcome Hands::wait(const QJsonObject& command)
{
    const QByteArray property = command[u"property"].toString().toLatin1();
    const QVariant wanted = command[u"value"].toVariant();
    for (QObject* object : objectsNamed(command[u"name"].toString())) {
        const QVariant value = object->property(property.constData());
        if (value.toString() == wanted.toString())
            return QJsonObject();
        iObstacle = u"it is %1"_s.arg(value.toString());
    }
    return std::nullopt;
}

Hands::Outcome Hands::script(const QJsonObject& command)
{
    auto* view = preview();
    if (iScriptAnswer) {
        const auto answer = std::exchange(iScriptAnswer, nullptr);
        if (answer->toVariant().toBool())
            return QJsonObject{ { u"answer"_s, *answer } };
        iObstacle = u"the page does not say so"_s;
    }
    if (!view || iIsAsking)
        return std::nullopt;
    iIsAsking = true;
    view->page()->runJavaScript(command[u"code"].toString(), [this](const QVariant& answer) {
        iIsAsking = false;
        iScriptAnswer = std::make_shared<QJsonValue>(QJsonValue::fromVariant(answer));
    });
    return std::nullopt;
}

Hands::Outcome Hands::loads(const QJsonObject& command)
{
    auto* view = preview();
    if (view && !iLoads) {
        iLoads = 0;
        QObject::connect(view, &QWebEngineView::loadStarted, view, [this] { ++*iLoads; });
    }
    if (!iLoads || *iLoads < command[u"count"].toInt())
        return obstacle(u"no page was loaded"_s);
    return QJsonObject{ { u"count"_s, *iLoads } };
}

Hands::Outcome Hands::see(const QJsonObject& command)
{
    const QWidget* widget = usable(command[u"name"].toString());
    if (!widget)
        return std::nullopt;
    const QColor colour(command[u"colour"].toString());
    return shows(*widget, colour.rgb()) ? Outcome(QJsonObject())
                                        : obstacle(u"the colour is not there"_s);
}

Hands::Outcome Hands::quit(const QJsonObject& /*command*/)
{
    QMainWindow* window = mainWindow();
    if (!window)
        return obstacle(u"there is no main window"_s);
    window->close();
    return QJsonObject();
}

} // namespace leafcast
