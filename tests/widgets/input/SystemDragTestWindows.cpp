// Drags of the system: its own loop runs, fed by its own mouse.

#include "support/TestProgram.h"
#include "support/TextDrag.h"
#include "support/WidgetTest.h"
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QThread>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QVBoxLayout>

#include <memory>

#include <windows.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

void turnMouse(DWORD what)
{
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = what;
    SendInput(1, &input, sizeof input);
    QThread::msleep(100);
}

void moveMouse(const QPoint &place)
{
    SetCursorPos(place.x(), place.y());
    turnMouse(MOUSEEVENTF_MOVE);
}

} // namespace

class SystemDragTest : public WidgetTest
{
    Q_OBJECT

private:
    std::unique_ptr<QWidget> m_window;
    RichTextBox *m_box = nullptr;
    RichTextBox *m_other = nullptr;
    QPlainTextEdit *m_field = nullptr;

    // Points of the window. By a thread of its own, as users are: the toolkit and the
    // system wait for the mouse in a drag, and run no timers meanwhile.
    void drag(const QPoint &from, const QPoint &to)
    {
        const QPoint first = m_window->mapToGlobal(from);
        const QPoint last = m_window->mapToGlobal(to);
        const std::unique_ptr<QThread> user(QThread::create([first, last] {
            moveMouse(first);
            turnMouse(MOUSEEVENTF_LEFTDOWN);
            for (int i = 1; i <= 8; ++i)
                moveMouse(first + (last - first) * i / 8);
            turnMouse(MOUSEEVENTF_LEFTUP);
            moveMouse(last + QPoint(1, 0)); // a drag that began late would wait for it
        }));
        user->start();
        QTRY_VERIFY(user->isFinished());
        QCoreApplication::processEvents();
    }
    QPoint inField() const { return m_field->viewport()->mapTo(m_window.get(), QPoint(10, 10)); }

private Q_SLOTS:
    void init() override;
    void cleanup() override
    {
        m_window.reset();
        WidgetTest::cleanup();
    }

    void aMoveGoesToAnotherBox();
    void aMoveGoesToAField();
};

void SystemDragTest::init()
{
    WidgetTest::init();
    QCOMPARE(QGuiApplication::platformName(), u"windows"_s);
    m_window = std::make_unique<QWidget>();
    auto *layout = new QVBoxLayout(m_window.get());
    for (RichTextBox **box : {&m_box, &m_other}) {
        *box = new RichTextBox;
        layout->addWidget(*box);
    }
    m_field = new QPlainTextEdit;
    layout->addWidget(m_field);
    m_window->setGeometry(100, 100, 400, 400);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QTest::qWait(500); // the display's part of it, which nobody is told of
}

void SystemDragTest::aMoveGoesToAnotherBox()
{
    m_box->setText(u"one two"_s);
    m_other->setText(u"three"_s);
    m_box->setSelLength(4);
    drag(TextDrag::inWindow(*m_box, 2), TextDrag::inWindow(*m_other, 0));
    QTRY_COMPARE(m_other->Text(), u"one three"_s);
    QCOMPARE(m_box->Text(), u"two"_s);
}

void SystemDragTest::aMoveGoesToAField()
{
    m_box->setText(u"one\r\ntwo"_s);
    m_box->setSelLength(8);
    drag(TextDrag::inWindow(*m_box, 1), inField());
    QTRY_COMPARE(m_field->toPlainText(), u"one\ntwo"_s);
    QCOMPARE(m_box->Text(), QString());
}

ORVT_TEST(SystemDragTest)
#include "SystemDragTestWindows.moc"
