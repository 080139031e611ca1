#include "workbench/settings/KeptWindow.h"

#include "workbench/ProjectView.h"
#include "workbench/reading/ControllerPart.h"
#include "workbench/views/TableViews.h"
#include "workbench/views/Workplace.h"

#include <ORVTListview/CodeView.h>

#include <QtCore/QMetaProperty>
#include <QtCore/QSettings>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QSplitter>

namespace ORVTListview {
namespace {

using namespace Qt::StringLiterals;

constexpr auto geometry = "window/geometry"_L1;
constexpr auto arrangement = "window/arrangement"_L1;
constexpr auto tables = "window/tables"_L1;
constexpr auto views = "window/views"_L1;
constexpr auto division = "window/division"_L1;

// What the menu switches, and how large the text is.
template <typename Act>
void forEachSwitch(const Act &act)
{
    const QMetaObject &meta = CodeView::staticMetaObject;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        const QLatin1StringView name(property.name());
        const bool isOurs = name == "keepsText"_L1 || name == "hasOwnUndo"_L1;
        if (property.isWritable() && !isOurs)
            act(property, "editor/"_L1 + name);
    }
}

// As it is written; nothing for what is damaged.
QVariant valueOf(const QMetaProperty &property, const QVariant &stored)
{
    const QString text = stored.toString();
    if (property.metaType() == QMetaType::fromType<bool>())
        return text == "true"_L1    ? QVariant(true)
               : text == "false"_L1 ? QVariant(false)
                                    : QVariant();
    const int number = text.toInt();
    return number > 0 ? QVariant(number) : QVariant();
}

void readViews(const QSettings &store, const ProjectView &view)
{
    view.tables().open(store.value(tables).toStringList());
    view.workplace().arrange(store.value(views).toByteArray());
}

void writeViews(QSettings &store, const ProjectView &view)
{
    store.setValue(tables, view.tables().opened());
    store.setValue(views, view.workplace().saveState());
}

} // namespace

void readWindow(const QSettings &store, QMainWindow &window, CodeView &view)
{
    window.restoreGeometry(store.value(geometry).toByteArray());
    window.restoreState(store.value(arrangement).toByteArray());
    if (auto *controller = window.findChild<ControllerPart *>())
        controller->hideEmptyTrend(); // it comes with the project
    if (auto *splitter = window.centralWidget()->findChild<QSplitter *>())
        splitter->restoreState(store.value(division).toByteArray());
    if (const auto *project = window.findChild<ProjectView *>())
        readViews(store, *project);
    forEachSwitch([&](const QMetaProperty &property, const QString &key) {
        const QVariant value = valueOf(property, store.value(key));
        if (value.isValid())
            property.write(&view, value);
    });
}

void writeWindow(QSettings &store, const QMainWindow &window, const CodeView &view)
{
    store.setValue(geometry, window.saveGeometry());
    store.setValue(arrangement, window.saveState());
    if (const auto *splitter = window.centralWidget()->findChild<QSplitter *>())
        store.setValue(division, splitter->saveState());
    if (const auto *project = window.findChild<ProjectView *>())
        writeViews(store, *project);
    forEachSwitch([&](const QMetaProperty &property, const QString &key) {
        store.setValue(key, property.read(&view));
    });
}

} // namespace ORVTListview
