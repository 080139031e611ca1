#pragma once

#include "support/TestFolder.h"
#include "support/WidgetTest.h"
#include "widgets/nodes/NodeTree.h"
#include <ORVTListview/SettingsStore.h>

#include <ORVTListview/ORVTListview.h>

#include <QtTest/QtTest>

// Tests of the project tree, with settings in a file of their own.
class ProjectTreeTest : public WidgetTest
{
    Q_OBJECT

protected:
    using Node = ORVTListview::Node;
    using ORVTreeview = ORVTListview::ORVTreeview;

    void init() override
    {
        WidgetTest::init();
        m_folder = std::make_unique<ORVTListview::TestFolder>();
        ORVTListview::setSettingsFile(settings());
    }

    QString settings() const { return m_folder->path(QStringLiteral("settings.ini")); }
    const ORVTListview::TestFolder &folder() const { return *m_folder; }

    static void store(const QString &name, const QString &text)
    {
        ORVTListview::WriteSetting(QStringLiteral("Quillbox"), name, text);
    }
    static QString stored(const QString &name)
    {
        return ORVTListview::ReadSetting(QStringLiteral("Quillbox"), name);
    }

    static ORVTListview::NodeTree *inner(const ORVTreeview &tree)
    {
        return tree.findChild<ORVTListview::NodeTree *>(QStringLiteral("TreeView1"));
    }
    static Node *node(const ORVTreeview &tree, const QString &key)
    {
        return tree.Nodes()->Item(key);
    }

    // The keys below a node, in order.
    static QStringList keysBelow(const Node *parent)
    {
        QStringList keys;
        for (const Node *node = parent->Child(); node; node = node->Next())
            keys.append(node->Key());
        return keys;
    }
    static QStringList keysOn(const ORVTreeview &tree, int page)
    {
        return keysBelow(node(tree, QStringLiteral("Page%1").arg(page)));
    }

private:
    std::unique_ptr<ORVTListview::TestFolder> m_folder;
};

// A shown project tree and a user who works with it through the window.
class ShownProject
{
public:
    ShownProject()
        : tree(new ORVTListview::ORVTreeview(&form))
        , view(tree->findChild<ORVTListview::NodeTree *>())
    {
        form.resize(320, 640);
        tree->setGeometry(10, 10, 300, 620);
        form.show();
        form.activateWindow();
        if (!QTest::qWaitForWindowActive(&form))
            qFatal("the window does not become active");
        tree->setFocus();
        window = form.windowHandle();
    }

    ORVTListview::ORVTreeview *operator->() const { return tree; }
    ORVTListview::Node *node(const QString &key) const { return tree->Nodes()->Item(key); }

    // In the middle of the node's row.
    QPoint place(const QString &key) const
    {
        QModelIndex index = view->model()->index(0, 0);
        while (index.isValid() && view->nodeAt(view->visualRect(index).center()) != node(key))
            index = view->indexBelow(index);
        if (!index.isValid())
            qFatal("the node is not in view");
        return view->viewport()->mapTo(&form, view->visualRect(index).center());
    }
    void key(Qt::Key which, Qt::KeyboardModifiers held = Qt::NoModifier) const
    {
        QTest::keyClick(window, which, held);
    }

    QWidget form;
    QPointer<ORVTListview::ORVTreeview> tree;
    QPointer<ORVTListview::NodeTree> view;
    QWindow *window = nullptr;
};
