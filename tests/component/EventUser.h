#pragma once

#include <QtCore/QPointer>
#include <QtGui/QGuiApplication>
#include <QtGui/QWindow>
#include <QtTest/QTest>
#include <QtWidgets/QWidget>

// A user whose window may go at any moment: what is left to do is then left out. A
// place is in the middle of a widget, or the widget's own.
class EventUser
{
public:
    // Lets go of what was held in a window that is gone.
    ~EventUser()
    {
        if (QGuiApplication::mouseButtons() == Qt::NoButton)
            return;
        QWidget other;
        other.show();
        send(other.windowHandle(), QEvent::MouseButtonRelease, {}, m_button, Qt::NoButton);
    }

    void press(QWidget &widget, QPoint place, Qt::MouseButton button = Qt::LeftButton)
    {
        m_window = widget.window()->windowHandle();
        m_place = widget.mapTo(widget.window(), place);
        m_button = button;
        m_time += 10'000; // no double click
        send(m_window, QEvent::MouseButtonPress, m_place, button, button);
    }
    void release()
    {
        m_time += 1;
        send(m_window, QEvent::MouseButtonRelease, m_place, m_button, Qt::NoButton);
    }
    void click(QWidget &widget, QPoint place, Qt::MouseButton button = Qt::LeftButton)
    {
        press(widget, place, button);
        release();
    }
    void doubleClick(QWidget &widget, QPoint place)
    {
        click(widget, place);
        m_time += 1;
        send(m_window, QEvent::MouseButtonPress, m_place, m_button, m_button);
        release();
    }
    void move(QWidget &widget, QPoint place)
    {
        m_window = widget.window()->windowHandle();
        for (const QPoint &step : {QPoint(1, 1), QPoint()}) {
            if (m_window)
                m_place = widget.mapTo(widget.window(), place) + step;
            send(m_window, QEvent::MouseMove, m_place, Qt::NoButton,
                 QGuiApplication::mouseButtons());
        }
    }

    void key(QWidget &widget, Qt::Key which, Qt::KeyboardModifiers held = Qt::NoModifier)
    {
        m_window = widget.window()->windowHandle();
        QTest::keyPress(m_window, which, held);
        if (m_window)
            QTest::keyRelease(m_window, which, held);
    }

private:
    void send(QWindow *window, QEvent::Type type, QPoint place, Qt::MouseButton button,
              Qt::MouseButtons held)
    {
        if (window)
            qt_handleMouseEvent(window, place, window->mapToGlobal(place), held, button, type,
                                Qt::NoModifier, m_time);
    }

    QPointer<QWindow> m_window;
    QPoint m_place;
    Qt::MouseButton m_button = Qt::NoButton;
    inline static int m_time = 0; // goes on from window to window
};
