#pragma once

#include <ORVTListview/RichTextBox.h>

#include <QtCore/QTimer>
#include <QtGui/QWindow>
#include <QtTest/QTest>

// Drags text with the mouse. Needs a display: the offscreen platform cannot drag.
namespace TextDrag {

// Where a position of a box is shown.
inline QPoint inWindow(ORVTListview::RichTextBox &box, qint32 position)
{
    const qint32 start = box.SelStart();
    const qint32 length = box.SelLength();
    box.setSelStart(position);
    const QPoint point = box.cursorRect().center();
    box.setSelStart(start);
    box.setSelLength(length);
    return box.viewport()->mapTo(box.window(), point);
}

inline void drag(const QWidget &form, const QPoint &from, const QPoint &to)
{
    QWindow *window = form.windowHandle();
    QTest::mousePress(window, Qt::LeftButton, {}, from);
    // The drag runs a loop of its own, which the release ends.
    QTimer::singleShot(0, window, [window, to] {
        QTest::mouseMove(window, to - QPoint(1, 0));
        QTest::mouseMove(window, to);
        QTest::mouseRelease(window, Qt::LeftButton, {}, to);
    });
    QTest::mouseMove(window, from + QPoint(40, 0));
    QCoreApplication::processEvents();
}

} // namespace TextDrag
