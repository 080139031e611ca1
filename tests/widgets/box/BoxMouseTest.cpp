// Text that is selected with the mouse.

#include "support/TestProgram.h"
#include "widgets/box/ShownBoxTest.h"

#include <QtGui/QTextBlock>
#include <QtWidgets/QApplication>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class BoxMouseTest : public ShownBoxTest
{
    Q_OBJECT

private Q_SLOTS:
    void aDragSelectsFromPressToRelease_data();
    void aDragSelectsFromPressToRelease();
    void theSelectionFollowsTheMouseMeanwhile();
    void aReadOnlyBoxIsSelectedIn();
    void shiftGoesOnFromTheCaret();
    void aDoubleClickSelectsTheWord();
    void aClickEndsTheSelection();
    void whatWasSelectedIsReplacedByTyping();

private:
    void fill() const { m_box->setText(u"first line\r\nsecond line"_s); }

    // Before the letter, in the viewport. A line end is one position, and two in the
    // box's text.
    QPoint before(int position) const
    {
        QTextCursor cursor(m_box->document());
        cursor.setPosition(position);
        return m_box->cursorRect(cursor).center();
    }
    void move(int position) const
    {
        QMouseEvent event(QEvent::MouseMove, before(position),
                          m_box->viewport()->mapToGlobal(before(position)), Qt::NoButton,
                          Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_box->viewport(), &event);
    }
    void press(int position, Qt::KeyboardModifiers held = Qt::NoModifier) const
    {
        QTest::mousePress(m_box->viewport(), Qt::LeftButton, held, before(position));
    }
    void release(int position) const
    {
        QTest::mouseRelease(m_box->viewport(), Qt::LeftButton, {}, before(position));
    }
    void drag(int from, int to) const
    {
        press(from);
        move((from + to) / 2);
        move(to);
        release(to);
    }
};

void BoxMouseTest::aDragSelectsFromPressToRelease_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<QString>("selected");
    QTest::newRow("forwards") << 2 << 8 << u"rst li"_s;
    QTest::newRow("backwards") << 8 << 2 << u"rst li"_s;
    QTest::newRow("over two lines") << 6 << 17 << u"line\r\nsecond"_s;
    QTest::newRow("over two lines, backwards") << 17 << 6 << u"line\r\nsecond"_s;
    QTest::newRow("to the end") << 11 << 22 << u"second line"_s;
    QTest::newRow("nowhere") << 4 << 4 << QString();
}

void BoxMouseTest::aDragSelectsFromPressToRelease()
{
    QFETCH(const int, from);
    QFETCH(const int, to);
    QFETCH(const QString, selected);
    fill();
    drag(from, to);
    QCOMPARE(m_box->SelText(), selected);
    QCOMPARE(m_box->textCursor().anchor(), from);
    QCOMPARE(m_box->textCursor().position(), to);
    QCOMPARE(m_box->Text(), u"first line\r\nsecond line"_s);
}

void BoxMouseTest::theSelectionFollowsTheMouseMeanwhile()
{
    fill();
    press(2);
    QCOMPARE(m_box->SelLength(), 0);
    move(8);
    QCOMPARE(m_box->SelText(), u"rst li"_s);
    move(4);
    QCOMPARE(m_box->SelText(), u"rs"_s);
    move(0);
    QCOMPARE(m_box->SelText(), u"fi"_s);
    release(0);
    move(9); // the button is up
    QCOMPARE(m_box->SelText(), u"fi"_s);
}

void BoxMouseTest::aReadOnlyBoxIsSelectedIn()
{
    fill();
    m_box->setReadOnly(true);
    drag(0, 5);
    QCOMPARE(m_box->SelText(), u"first"_s);
}

void BoxMouseTest::shiftGoesOnFromTheCaret()
{
    fill();
    press(2);
    release(2);
    QTest::qWait(QApplication::doubleClickInterval() + 10);
    press(7, Qt::ShiftModifier);
    release(7);
    QCOMPARE(m_box->SelText(), u"rst l"_s);
}

void BoxMouseTest::aDoubleClickSelectsTheWord()
{
    fill();
    QTest::mouseDClick(m_box->viewport(), Qt::LeftButton, {}, before(14));
    QCOMPARE(m_box->SelText(), u"second"_s);
}

void BoxMouseTest::aClickEndsTheSelection()
{
    fill();
    drag(0, 5);
    QTest::mouseClick(m_box->viewport(), Qt::LeftButton, {}, before(8));
    QCOMPARE(m_box->SelLength(), 0);
    QCOMPARE(m_box->SelStart(), 8);
}

void BoxMouseTest::whatWasSelectedIsReplacedByTyping()
{
    fill();
    drag(6, 17);
    QTest::keyClick(m_box, Qt::Key_X);
    QCOMPARE(m_box->Text(), u"first x line"_s);
}

ORVT_TEST(BoxMouseTest)
#include "BoxMouseTest.moc"
