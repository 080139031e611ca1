#pragma once

#include <QtCore/QVariant>
#include <QtDesigner/QDesignerComponents>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerIntegration>
#include <QtDesigner/QDesignerPropertyEditorInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QDesignerTaskMenuExtension>
#include <QtDesigner/QExtensionManager>
#include <QtTest/QTest>
#include <QtWidgets/QTreeView>
#include <QtWidgets/QWidget>

#include <memory>

// A form with all four as they come from the widget box.
inline const QString plainForm = QStringLiteral(R"(<ui version="4.0"><class>Form</class>
<widget class="QWidget" name="Form">
 <widget class="ORVTListview::ORVListView" name="listView"/>
 <widget class="ORVTListview::ORVTreeview" name="treeview"/>
 <widget class="ORVTListview::ORVDataCombo" name="dataCombo"/>
 <widget class="ORVTListview::ORVRichText" name="richText"/>
</widget></ui>)");

// Designer without its windows.
class Designer
{
public:
    Designer()
    {
        // Designer tries one of each of the toolkit's widgets.
        QTest::ignoreMessage(QtWarningMsg, "QOpenGLWidget is not supported on this platform.");
        QDesignerComponents::initializeResources();
        m_core = QDesignerComponents::createFormEditor(&m_owner);
        QDesignerComponents::initializePlugins(m_core);
        m_core->setPropertyEditor(QDesignerComponents::createPropertyEditor(m_core, &m_window));
        new QDesignerIntegration(m_core, &m_owner); // becomes the core's
    }

    std::unique_ptr<QDesignerFormWindowInterface> opened(const QString &xml)
    {
        std::unique_ptr<QDesignerFormWindowInterface> window(
            m_core->formWindowManager()->createFormWindow(nullptr));
        if (!window->setContents(xml))
            qFatal("Designer does not open the form");
        return window;
    }

    // As the property editor does.
    void change(QDesignerFormWindowInterface &window, const QString &widget,
                const QString &property, const QVariant &value)
    {
        auto *sheet = qt_extension<QDesignerPropertySheetExtension *>(
            m_core->extensionManager(), window.findChild<QWidget *>(widget));
        const int index = sheet->indexOf(property);
        QVERIFY2(index >= 0 && sheet->isVisible(index), qPrintable(property));
        sheet->setProperty(index, value);
        sheet->setChanged(index, true);
    }

    // By a command that can be undone.
    static void edit(QDesignerFormWindowInterface &window, const QString &widget,
                     const QString &property, const QVariant &value)
    {
        window.cursor()->setWidgetProperty(window.findChild<QWidget *>(widget), property, value);
    }

    // What the property editor tells of a property; empty for one that it does not show.
    QString toolTip(QDesignerFormWindowInterface &window, const QString &widget,
                    const QString &property)
    {
        return shown(window, widget, property).data(Qt::ToolTipRole).toString();
    }

    // The heading under which the property editor shows it.
    QString group(QDesignerFormWindowInterface &window, const QString &widget,
                  const QString &property)
    {
        return shown(window, widget, property).parent().data().toString();
    }

    // Of the widget's task menu, as long as it lives; null for one without.
    QDesignerTaskMenuExtension *taskMenu(QWidget *widget)
    {
        return qt_extension<QDesignerTaskMenuExtension *>(m_core->extensionManager(), widget);
    }

private:
    // Where the property editor shows a property.
    QModelIndex shown(QDesignerFormWindowInterface &window, const QString &widget,
                      const QString &property)
    {
        m_core->propertyEditor()->setObject(window.findChild<QWidget *>(widget));
        for (const QTreeView *tree : m_window.findChildren<QTreeView *>()) {
            const QModelIndexList found = tree->model()->match(
                tree->model()->index(0, 0), Qt::DisplayRole, property, 1,
                Qt::MatchExactly | Qt::MatchCaseSensitive | Qt::MatchRecursive);
            if (!found.isEmpty())
                return found.constFirst();
        }
        return {};
    }

    QObject m_owner;
    QWidget m_window;
    QDesignerFormEditorInterface *m_core;
};
