#pragma once

#include "widgets/look/Twips.h"
#include "widgets/nodes/NodeTree.h"
#include <ORVTListview/Error.h>
#include <ORVTListview/Nodes.h>

#include <QtGui/QGuiApplication>
#include <QtGui/QStyleHints>
#include <QtGui/QWindow>
#include <QtTest/QtTest>
#include <QtWidgets/QLineEdit>

// A shown tree on a form, and a user who works with it through the window. Places
// are the form's. At first: the nodes r, below it a and b, below them a1, a2 and
// b1, all expanded, each with its key for a text.
class ShownTree
{
public:
    ShownTree()
        : tree(new ORVTListview::NodeTree(&form))
    {
        add(QString(), QStringLiteral("r"));
        add(QStringLiteral("r"), QStringLiteral("a"));
        add(QStringLiteral("r"), QStringLiteral("b"));
        add(QStringLiteral("a"), QStringLiteral("a1"));
        add(QStringLiteral("a"), QStringLiteral("a2"));
        add(QStringLiteral("b"), QStringLiteral("b1"));
        tree->expandAll();
        form.resize(300, 280);
        tree->setGeometry(20, 20, 260, 240);
        form.show();
        form.activateWindow();
        if (!QTest::qWaitForWindowActive(&form))
            qFatal("the window does not become active");
        tree->setFocus();
        window = form.windowHandle();
    }

    ORVTListview::NodeTree *operator->() const { return tree; }

    ORVTListview::Node *add(const QString &parent, const QString &key) const
    {
        using ORVTListview::NodeRelationship;
        ORVTListview::Node *above = parent.isEmpty() ? nullptr : node(parent);
        return tree->Nodes()->Add(above, NodeRelationship::Child, key, key);
    }
    ORVTListview::Node *node(const char *key) const { return node(QString::fromLatin1(key)); }
    ORVTListview::Node *node(const QString &key) const { return tree->Nodes()->Item(key); }

    QString selected() const
    {
        const ORVTListview::Node *chosen = tree->SelectedItem();
        return chosen ? chosen->Key() : QString();
    }

    QModelIndex index(const char *key) const
    {
        const QModelIndexList found =
            tree->model()->match(tree->model()->index(0, 0), Qt::DisplayRole, node(key)->Text(), 1,
                                 Qt::MatchExactly | Qt::MatchCaseSensitive | Qt::MatchRecursive);
        return found.value(0);
    }

    QPoint inForm(QPoint inViewport) const { return tree->viewport()->mapTo(&form, inViewport); }

    // On the node's text, on its expander, and below all.
    QPoint label(const char *key) const
    {
        const QRect rect = tree->visualRect(index(key));
        return inForm({rect.left() + 8, rect.center().y()});
    }
    QPoint expander(const char *key) const
    {
        const QRect rect = tree->visualRect(index(key));
        return inForm({rect.left() - tree->indentation() / 2, rect.center().y()});
    }
    QPoint below() const { return inForm(QPoint(100, tree->viewport()->height() - 5)); }

    void press(QPoint at, Qt::MouseButton button = Qt::LeftButton) const
    {
        QTest::mousePress(window, button, {}, at);
    }
    void release(QPoint at, Qt::MouseButton button = Qt::LeftButton) const
    {
        QTest::mouseRelease(window, button, {}, at);
    }
    // With a pause before it, so that two clicks are no double click.
    void click(QPoint at, Qt::MouseButton button = Qt::LeftButton) const
    {
        QTest::mouseClick(window, button, {}, at, betweenClicks());
    }
    void doubleClick(QPoint at) const { QTest::mouseDClick(window, Qt::LeftButton, {}, at); }
    void key(Qt::Key which, Qt::KeyboardModifiers held = Qt::NoModifier) const
    {
        QTest::keyClick(window, which, held);
    }

    // What a label is typed into, while it is.
    QLineEdit *labelEditor() const { return tree->viewport()->findChild<QLineEdit *>(); }

    static int betweenClicks()
    {
        return 1 + QGuiApplication::styleHints()->mouseDoubleClickInterval();
    }

    QWidget form;
    QPointer<ORVTListview::NodeTree> tree;
    QWindow *window = nullptr;
};
