#include "widgets/input/VirtualKeys.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtGui/QKeyEvent>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class VirtualKeysTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void eachKeyHasItsNumber_data();
    void eachKeyHasItsNumber();
    void lettersAndDigitsAreTheirOwnCode();
    void functionKeysAreInARow();
    void theKeypadHasNumbersOfItsOwn_data();
    void theKeypadHasNumbersOfItsOwn();
    void charactersOnNoKnownKeyShareANumber();
    void theShiftStateIsThreeBits_data();
    void theShiftStateIsThreeBits();
    void altGrIsNoModifier();
    void typingIsTellable_data();
    void typingIsTellable();

private:
    static VirtualKey of(int key, Qt::KeyboardModifiers modifiers = {}, const QString &text = {})
    {
        return virtualKey(QKeyEvent(QEvent::KeyPress, key, modifiers, text));
    }
};

void VirtualKeysTest::eachKeyHasItsNumber_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("code");
    const std::pair<int, int> table[] = {
        {Qt::Key_Backspace, 8},      {Qt::Key_Tab, 9},
        {Qt::Key_Backtab, 9},        {Qt::Key_Clear, 12},
        {Qt::Key_Return, 13},        {Qt::Key_Enter, 13},
        {Qt::Key_Shift, 16},         {Qt::Key_Control, 17},
        {Qt::Key_Alt, 18},           {Qt::Key_AltGr, 18},
        {Qt::Key_Pause, 19},         {Qt::Key_CapsLock, 20},
        {Qt::Key_Escape, 27},        {Qt::Key_Space, 32},
        {Qt::Key_PageUp, 33},        {Qt::Key_PageDown, 34},
        {Qt::Key_End, 35},           {Qt::Key_Home, 36},
        {Qt::Key_Left, 37},          {Qt::Key_Up, 38},
        {Qt::Key_Right, 39},         {Qt::Key_Down, 40},
        {Qt::Key_Print, 44},         {Qt::Key_Insert, 45},
        {Qt::Key_Delete, 46},        {Qt::Key_Help, 47},
        {Qt::Key_Meta, 91},          {Qt::Key_Menu, 93},
        {Qt::Key_NumLock, 144},      {Qt::Key_ScrollLock, 145},
        {Qt::Key_Exclam, '1'},       {Qt::Key_ParenRight, '0'},
        {Qt::Key_ParenLeft, '9'},    {Qt::Key_Asterisk, '8'},
        {Qt::Key_Semicolon, 186},    {Qt::Key_Colon, 186},
        {Qt::Key_Equal, 187},        {Qt::Key_Plus, 187},
        {Qt::Key_Comma, 188},        {Qt::Key_Less, 188},
        {Qt::Key_Minus, 189},        {Qt::Key_Underscore, 189},
        {Qt::Key_Period, 190},       {Qt::Key_Greater, 190},
        {Qt::Key_Slash, 191},        {Qt::Key_Question, 191},
        {Qt::Key_QuoteLeft, 192},    {Qt::Key_AsciiTilde, 192},
        {Qt::Key_BracketLeft, 219},  {Qt::Key_BraceLeft, 219},
        {Qt::Key_Backslash, 220},    {Qt::Key_Bar, 220},
        {Qt::Key_BracketRight, 221}, {Qt::Key_BraceRight, 221},
        {Qt::Key_Apostrophe, 222},   {Qt::Key_QuoteDbl, 222},
        {Qt::Key_unknown, 0},        {Qt::Key_Multi_key, 0},
    };
    for (const auto &[key, code] : table)
        QTest::addRow("%d", key) << key << code;
}

void VirtualKeysTest::eachKeyHasItsNumber()
{
    QFETCH(int, key);
    QFETCH(int, code);
    QCOMPARE(of(key).keyCode, static_cast<qint16>(code));
}

void VirtualKeysTest::lettersAndDigitsAreTheirOwnCode()
{
    for (int key = Qt::Key_A; key <= Qt::Key_Z; ++key) {
        QCOMPARE(of(key).keyCode, static_cast<qint16>('A' + key - Qt::Key_A));
        QCOMPARE(of(key, Qt::ShiftModifier).keyCode, static_cast<qint16>('A' + key - Qt::Key_A));
    }
    for (int key = Qt::Key_0; key <= Qt::Key_9; ++key)
        QCOMPARE(of(key).keyCode, static_cast<qint16>('0' + key - Qt::Key_0));
}

void VirtualKeysTest::functionKeysAreInARow()
{
    for (int i = 0; i < 24; ++i)
        QCOMPARE(of(Qt::Key_F1 + i).keyCode, static_cast<qint16>(112 + i));
    QCOMPARE(of(Qt::Key_F25).keyCode, qint16{0});
}

void VirtualKeysTest::theKeypadHasNumbersOfItsOwn_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("code");
    for (int i = 0; i < 10; ++i)
        QTest::addRow("%d", i) << Qt::Key_0 + i << 96 + i;
    QTest::newRow("*") << int(Qt::Key_Asterisk) << 106;
    QTest::newRow("+") << int(Qt::Key_Plus) << 107;
    QTest::newRow("-") << int(Qt::Key_Minus) << 109;
    QTest::newRow(".") << int(Qt::Key_Period) << 110;
    QTest::newRow(",") << int(Qt::Key_Comma) << 110;
    QTest::newRow("/") << int(Qt::Key_Slash) << 111;
    QTest::newRow("Enter") << int(Qt::Key_Enter) << 13;
    QTest::newRow("Home, lock off") << int(Qt::Key_Home) << 36;
    QTest::newRow("Delete, lock off") << int(Qt::Key_Delete) << 46;
    QTest::newRow("5, lock off") << int(Qt::Key_Clear) << 12;
}

void VirtualKeysTest::theKeypadHasNumbersOfItsOwn()
{
    QFETCH(int, key);
    QFETCH(int, code);
    QCOMPARE(of(key, Qt::KeypadModifier), (VirtualKey{static_cast<qint16>(code), 0}));
}

void VirtualKeysTest::charactersOnNoKnownKeyShareANumber()
{
    QCOMPARE(of(Qt::Key_Adiaeresis, {}, u"\u00e4"_s).keyCode, qint16{231});
    QCOMPARE(of(0, {}, u"\u0436"_s).keyCode, qint16{231});
    QCOMPARE(of(0, {}, u"\U0001F600"_s).keyCode, qint16{231});
    QCOMPARE(of(0, {}, u"\u0001"_s).keyCode, qint16{0});
}

void VirtualKeysTest::theShiftStateIsThreeBits_data()
{
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<int>("shift");
    using Modifiers = Qt::KeyboardModifiers;
    QTest::newRow("none") << Modifiers() << 0;
    QTest::newRow("Shift") << Modifiers(Qt::ShiftModifier) << 1;
    QTest::newRow("Ctrl") << Modifiers(Qt::ControlModifier) << 2;
    QTest::newRow("Shift Ctrl") << (Qt::ShiftModifier | Qt::ControlModifier) << 3;
    QTest::newRow("Alt") << Modifiers(Qt::AltModifier) << 4;
    QTest::newRow("Shift Alt") << (Qt::ShiftModifier | Qt::AltModifier) << 5;
    QTest::newRow("Ctrl Alt") << (Qt::ControlModifier | Qt::AltModifier) << 6;
    QTest::newRow("all") << (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier) << 7;
    QTest::newRow("others") << (Qt::MetaModifier | Qt::KeypadModifier | Qt::GroupSwitchModifier)
                            << 0;
}

void VirtualKeysTest::theShiftStateIsThreeBits()
{
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(int, shift);
    QCOMPARE(of(Qt::Key_Left, modifiers), (VirtualKey{37, static_cast<qint16>(shift)}));
    QCOMPARE(of(Qt::Key_Backtab, modifiers), (VirtualKey{9, static_cast<qint16>(shift | 1)}));
}

void VirtualKeysTest::altGrIsNoModifier()
{
    const Qt::KeyboardModifiers altGr = Qt::ControlModifier | Qt::AltModifier;
    QCOMPARE(of(Qt::Key_BraceLeft, altGr, u"{"_s), (VirtualKey{219, 0}));
    QCOMPARE(of(Qt::Key_Q, altGr | Qt::ShiftModifier, u"@"_s), (VirtualKey{'Q', 1}));
    QCOMPARE(of(Qt::Key_Q, altGr, u"\u0011"_s), (VirtualKey{'Q', 6}));
    QCOMPARE(of(Qt::Key_Q, Qt::AltModifier, u"q"_s), (VirtualKey{'Q', 4}));
}

void VirtualKeysTest::typingIsTellable_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("typing");
    using Modifiers = Qt::KeyboardModifiers;
    const Modifiers altGr = Qt::ControlModifier | Qt::AltModifier;
    QTest::newRow("a") << int(Qt::Key_A) << Modifiers() << u"a"_s << true;
    QTest::newRow("A") << int(Qt::Key_A) << Modifiers(Qt::ShiftModifier) << u"A"_s << true;
    QTest::newRow("space") << int(Qt::Key_Space) << Modifiers() << u" "_s << true;
    QTest::newRow("tab") << int(Qt::Key_Tab) << Modifiers() << u"\t"_s << true;
    QTest::newRow("backtab") << int(Qt::Key_Backtab) << Modifiers() << u"\t"_s << false;
    QTest::newRow("AltGr") << int(Qt::Key_At) << altGr << u"@"_s << true;
    QTest::newRow("joiner") << 0 << Modifiers() << u"\u200d"_s << true;
    QTest::newRow("pair") << 0 << Modifiers() << u"\U0001F600"_s << true;
    QTest::newRow("Ctrl+A") << int(Qt::Key_A) << Modifiers(Qt::ControlModifier) << u"a"_s << false;
    QTest::newRow("Alt+A") << int(Qt::Key_A) << Modifiers(Qt::AltModifier) << u"a"_s << false;
    QTest::newRow("Enter") << int(Qt::Key_Return) << Modifiers() << u"\r"_s << false;
    QTest::newRow("Backspace") << int(Qt::Key_Backspace) << Modifiers() << u"\b"_s << false;
    QTest::newRow("F1") << int(Qt::Key_F1) << Modifiers() << QString() << false;
}

void VirtualKeysTest::typingIsTellable()
{
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(QString, text);
    QFETCH(bool, typing);
    QCOMPARE(isTyping(QKeyEvent(QEvent::KeyPress, key, modifiers, text)), typing);
}

ORVT_TEST(VirtualKeysTest)
#include "VirtualKeysTest.moc"
