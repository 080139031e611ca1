#pragma once

#include "widgets/look/Twips.h"
#include <ORVTListview/ColumnHeaders.h>
#include <ORVTListview/Error.h>
#include <ORVTListview/ListItems.h>
#include <ORVTListview/ReportList.h>

#include <QtGui/QGuiApplication>
#include <QtGui/QStyleHints>
#include <QtGui/QWindow>
#include <QtTest/QtTest>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLineEdit>

#include <functional>
#include <memory>

// A shown list on a form, and a user who works with it through the window. Places
// are the form's.
class ShownList
{
public:
    explicit ShownList(int rows = 5, int columns = 3)
        : list(new ORVTListview::ReportList(&form))
    {
        for (int column = 1; column <= columns; ++column)
            list->ColumnHeaders()->Add(0, QStringLiteral("Column%1").arg(column),
                                       QStringLiteral("Header %1").arg(column));
        for (int row = 1; row <= rows; ++row)
            list->Add(0, QStringLiteral("Row%1").arg(row), QStringLiteral("Text %1").arg(row));
        form.resize(460, 280);
        list->setGeometry(20, 20, 420, 240);
        form.show();
        form.activateWindow();
        if (!QTest::qWaitForWindowActive(&form))
            qFatal("the window does not become active");
        list->setFocus();
        window = form.windowHandle();
    }

    ORVTListview::ReportList *operator->() const { return list; }
    ORVTListview::ListItem *item(int index) const { return list->ListItems()->Item(index); }

    QPoint inForm(QPoint inViewport) const { return list->viewport()->mapTo(&form, inViewport); }

    // Of a cell's middle, counted from 1.
    QPoint cell(int row, int column = 1) const
    {
        const QModelIndex index = list->model()->index(row - 1, column - 1);
        return inForm(list->visualRect(index).center());
    }
    QPoint header(int column) const
    {
        const QHeaderView &view = *list->horizontalHeader();
        const QPoint middle(view.sectionViewportPosition(column - 1) +
                                view.sectionSize(column - 1) / 2,
                            view.height() / 2);
        return view.viewport()->mapTo(&form, middle);
    }
    QPoint below() const { return inForm(QPoint(20, list->viewport()->height() - 5)); }

    void press(QPoint at, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers held = Qt::NoModifier) const
    {
        QTest::mousePress(window, button, held, at);
    }
    void release(QPoint at, Qt::MouseButton button = Qt::LeftButton,
                 Qt::KeyboardModifiers held = Qt::NoModifier) const
    {
        QTest::mouseRelease(window, button, held, at);
    }
    // With a pause before it, so that two clicks are no double click.
    void click(QPoint at, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers held = Qt::NoModifier) const
    {
        QTest::mouseClick(window, button, held, at, betweenClicks());
    }
    void doubleClick(QPoint at) const { QTest::mouseDClick(window, Qt::LeftButton, {}, at); }
    void move(QPoint to) const { QTest::mouseMove(window, to); }
    void key(Qt::Key which, Qt::KeyboardModifiers held = Qt::NoModifier) const
    {
        QTest::keyClick(window, which, held);
    }

    // What a label is typed into, while it is.
    QLineEdit *labelEditor() const { return list->viewport()->findChild<QLineEdit *>(); }
    bool showsLabelEditor() const
    {
        const QLineEdit *editor = labelEditor();
        return editor && editor->isVisible();
    }

    static int betweenClicks()
    {
        return 1 + QGuiApplication::styleHints()->mouseDoubleClickInterval();
    }

    QWidget form;
    QPointer<ORVTListview::ReportList> list;
    QWindow *window = nullptr;
};

// The number of the Error that a call raises, 0 for none.
inline qint32 errorOf(const std::function<void()> &call)
{
    try {
        call();
    } catch (const ORVTListview::Error &error) {
        return error.Number();
    }
    return 0;
}
