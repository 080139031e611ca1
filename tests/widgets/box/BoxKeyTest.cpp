#include "widgets/box/ShownBoxTest.h"

#include "base/ColouredText.h"

#include "support/TestProgram.h"

#include <QtGui/QClipboard>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class BoxKeyTest : public ShownBoxTest
{
    Q_OBJECT

private Q_SLOTS:
    void keyDownComesBeforeTheBoxActs();
    void keyDownCanSwallow_data();
    void keyDownCanSwallow();
    void keysWithoutANumberAreNotAnnounced();
    void theBoxMayGoInsideKeyDown();
    void typedKeysReachTheText();
    void shiftEnterIsEnter_data();
    void shiftEnterIsEnter();
    void backspaceRemovesWholeCharacters();
    void removingWhatStoodBetweenMakesAPair();
    void altDoesNotType();
    void altGrTypes();
    void tabTypesATab();
    void ctrlTabMovesTheFocus();
};

void BoxKeyTest::keyDownComesBeforeTheBoxActs()
{
    QStringList heard;
    connect(m_box, &RichTextBox::KeyDown, m_box, [&](qint16 &keyCode, qint16 shift) {
        heard << u"%1 %2 %3"_s.arg(keyCode).arg(shift).arg(m_box->Text());
    });
    QTest::keyClick(m_box, Qt::Key_A);
    QTest::keyClick(m_box, 'B', Qt::ShiftModifier);
    QTest::keyClick(m_box, Qt::Key_Left, Qt::ControlModifier);
    QTest::keyClick(m_box, Qt::Key_Tab);
    QTest::keyClick(m_box, Qt::Key_Backtab, Qt::ShiftModifier);
    const QStringList expected{u"65 0 "_s,  u"16 1 a"_s,    u"66 1 a"_s,  u"37 2 aB"_s,
                               u"9 0 aB"_s, u"16 1 \taB"_s, u"9 1 \taB"_s};
    heard.removeAll(u"17 2 aB"_s); // Ctrl alone, which a test may or may not send
    heard.removeAll(u"16 1 a"_s);
    heard.removeAll(u"16 1 \taB"_s);
    QStringList keys = expected;
    keys.removeAll(u"16 1 a"_s);
    keys.removeAll(u"16 1 \taB"_s);
    QCOMPARE(heard, keys);
}

void BoxKeyTest::keyDownCanSwallow_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    using Modifiers = Qt::KeyboardModifiers;
    QTest::newRow("letter") << int(Qt::Key_A) << Modifiers();
    QTest::newRow("Enter") << int(Qt::Key_Return) << Modifiers();
    QTest::newRow("Shift+Enter") << int(Qt::Key_Return) << Modifiers(Qt::ShiftModifier);
    QTest::newRow("Backspace") << int(Qt::Key_Backspace) << Modifiers();
    QTest::newRow("Delete") << int(Qt::Key_Delete) << Modifiers();
    QTest::newRow("Tab") << int(Qt::Key_Tab) << Modifiers();
    QTest::newRow("Left") << int(Qt::Key_Left) << Modifiers();
    QTest::newRow("Ctrl+X") << int(Qt::Key_X) << Modifiers(Qt::ControlModifier);
    QTest::newRow("Ctrl+V") << int(Qt::Key_V) << Modifiers(Qt::ControlModifier);
    QTest::newRow("Ctrl+A") << int(Qt::Key_A) << Modifiers(Qt::ControlModifier);
    QTest::newRow("Ctrl+Delete") << int(Qt::Key_Delete) << Modifiers(Qt::ControlModifier);
}

void BoxKeyTest::keyDownCanSwallow()
{
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QGuiApplication::clipboard()->setText(u"clipboard"_s);
    m_box->setText(u"one two"_s);
    m_box->setSelStart(2);
    m_box->setSelLength(2);
    connect(m_box, &RichTextBox::KeyDown, m_box, [](qint16 &keyCode) { keyCode = 0; });
    QTest::keyClick(m_box, Qt::Key(key), modifiers);
    QCOMPARE(m_box->Text(), u"one two"_s);
    QCOMPARE(m_box->SelStart(), 2);
    QCOMPARE(m_box->SelLength(), 2);
}

void BoxKeyTest::keysWithoutANumberAreNotAnnounced()
{
    int heard = 0;
    connect(m_box, &RichTextBox::KeyDown, m_box, [&heard] { ++heard; });
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Multi_key, Qt::NoModifier);
    QCoreApplication::sendEvent(m_box, &event);
    QCOMPARE(heard, 0);
    QKeyEvent typed(QEvent::KeyPress, 0, Qt::NoModifier, u"\u0436"_s);
    QCoreApplication::sendEvent(m_box, &typed);
    QCOMPARE(heard, 1);
    QCOMPARE(m_box->Text(), u"\u0436"_s);
}

void BoxKeyTest::theBoxMayGoInsideKeyDown()
{
    connect(m_box, &RichTextBox::KeyDown, m_box, [this] { delete m_box; });
    QKeyEvent event(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, u"a"_s);
    QCoreApplication::sendEvent(m_box, &event);
    QVERIFY(m_box.isNull());
}

void BoxKeyTest::typedKeysReachTheText()
{
    m_box->setText(u"one two"_s);
    m_box->setSelStart(4);
    m_box->setSelLength(3);
    QTest::keyClicks(m_box, u"Xy 7"_s);
    QCOMPARE(m_box->Text(), u"one Xy 7"_s);
    QCOMPARE(m_box->SelStart(), 8);
    QTest::keyClick(m_box, Qt::Key_Home);
    QTest::keyClick(m_box, Qt::Key_Delete);
    QTest::keyClick(m_box, Qt::Key_Right);
    QTest::keyClick(m_box, Qt::Key_Backspace);
    QCOMPARE(m_box->Text(), u"e Xy 7"_s);
}

void BoxKeyTest::shiftEnterIsEnter_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    for (const int key : {Qt::Key_Return, Qt::Key_Enter}) {
        QTest::addRow("plain %x", key) << key << Qt::KeyboardModifiers();
        QTest::addRow("Shift %x", key) << key << Qt::KeyboardModifiers(Qt::ShiftModifier);
        QTest::addRow("keypad %x", key) << key << Qt::KeyboardModifiers(Qt::KeypadModifier);
        QTest::addRow("Shift keypad %x", key) << key << (Qt::ShiftModifier | Qt::KeypadModifier);
    }
}

void BoxKeyTest::shiftEnterIsEnter()
{
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    m_box->setText(u"ab"_s);
    m_box->setSelStart(1);
    QTest::keyClick(m_box, Qt::Key(key), modifiers);
    QCOMPARE(m_box->Text(), u"a\r\nb"_s);
    QCOMPARE(m_box->SelStart(), 3);
}

void BoxKeyTest::backspaceRemovesWholeCharacters()
{
    m_box->setColoured({u"a\r\n\U0001F600"_s, {{4, 1}, {1, 2}}});
    m_box->setSelStart(5);
    QTest::keyClick(m_box, Qt::Key_Backspace);
    QCOMPARE(m_box->Text(), u"a\r\n"_s);
    QTest::keyClick(m_box, Qt::Key_Backspace, Qt::ShiftModifier);
    QCOMPARE(m_box->Text(), u"a"_s);
    QTest::keyClick(m_box, Qt::Key_Backspace);
    QTest::keyClick(m_box, Qt::Key_Backspace);
    QCOMPARE(m_box->Text(), QString());
}

void BoxKeyTest::removingWhatStoodBetweenMakesAPair()
{
    for (const auto key : {Qt::Key_Backspace, Qt::Key_Delete}) {
        m_box->setText(QString(QChar(0xd83d)) + u"x"_s + QChar(0xde00));
        m_box->setSelStart(key == Qt::Key_Backspace ? 2 : 1);
        QTest::keyClick(m_box, key);
        QCOMPARE(m_box->Text(), u"\U0001F600"_s);
        QCOMPARE(m_box->SelStart(), 0);
    }
}

void BoxKeyTest::altDoesNotType()
{
    QKeyEvent event(QEvent::KeyPress, Qt::Key_A, Qt::AltModifier, u"a"_s);
    QCoreApplication::sendEvent(m_box, &event);
    QCOMPARE(m_box->Text(), QString());
    QVERIFY(!event.isAccepted());
}

void BoxKeyTest::altGrTypes()
{
    qint16 state = -1;
    connect(m_box, &RichTextBox::KeyDown, m_box, [&](qint16 &, qint16 shift) { state = shift; });
    QKeyEvent event(QEvent::KeyPress, Qt::Key_BraceLeft, Qt::ControlModifier | Qt::AltModifier,
                    u"{"_s);
    QCoreApplication::sendEvent(m_box, &event);
    QCOMPARE(m_box->Text(), u"{"_s);
    QCOMPARE(state, qint16{0});
}

void BoxKeyTest::tabTypesATab()
{
    QTest::keyClick(m_box, Qt::Key_Tab);
    QCOMPARE(m_box->Text(), u"\t"_s);
    QVERIFY(m_box->hasFocus());
}

void BoxKeyTest::ctrlTabMovesTheFocus()
{
    QWidget window;
    QVBoxLayout layout(&window);
    QLineEdit before;
    RichTextBox box;
    QLineEdit behind;
    for (QWidget *widget : std::initializer_list<QWidget *>{&before, &box, &behind})
        layout.addWidget(widget);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QList<qint16> keys;
    connect(&box, &RichTextBox::KeyDown, &box, [&](qint16 &keyCode) { keys << keyCode; });
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_Tab, Qt::ControlModifier);
    QVERIFY(behind.hasFocus());
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(before.hasFocus());
    QVERIFY(!keys.contains(qint16{9}));
    QVERIFY(takes(box, Qt::Key_Tab, Qt::ControlModifier));
    layout.removeWidget(&before);
}

ORVT_TEST(BoxKeyTest)
#include "BoxKeyTest.moc"
