// Finding an entry by typing a part of its text.

#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/combo/ImageComboFixture.h"

#include <QtGui/QClipboard>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class ImageComboTypingTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void findsAnEntryByAnyPartOfItsText();
    void marksTheBestMatch();
    void ignoresLetterCase();
    void followsEveryEdit();
    void closesWhenNothingMatches();
    void takesNothingForAnEmptyField();
    void takesTheMarkedEntryWithTab();
    void escapeBringsBackTheEntry();
    void escapeBringsBackTheText();
    void selectsATypedTextWhenTheFocusLeaves();
    void keepsATextThatIsNoEntry();
    void selectsATypedTextWithEnter();
    void typingBackWhatWasSelectsItAgain();
    void takesWhatAnInputMethodCommits();
    void takesWhatIsPasted();
    void undoesTyping();
};

void ImageComboTypingTest::findsAnEntryByAnyPartOfItsText()
{
    QStringList texts;
    for (int i = 1; i <= 30'000; ++i)
        texts.append((i % 2 ? u"Valve%1"_s : u"Damper%1"_s).arg(i));
    texts[20'000] = u"Temp1"_s;
    const ShownCombo shown(texts);
    shown.type(u"mp1"_s);
    QCOMPARE(shown.listed(), QStringList{u"Temp1"_s});
    QCOMPARE(shown->selectedIndex(), 0);
    shown.key(Qt::Key_Return);
    QCOMPARE(shown->selectedIndex(), 20'001);
    QCOMPARE(shown->text(), u"Temp1"_s);
    QVERIFY(!shown->isListOpen());
}

void ImageComboTypingTest::marksTheBestMatch()
{
    const ShownCombo shown({u"OutTemp1"_s, u"Temp10"_s, u"TEMP1"_s, u"Temp1"_s});
    shown.type(u"mp"_s);
    QCOMPARE(shown.marked(), u"OutTemp1"_s); // the first
    shown.key(Qt::Key_Home);
    shown.type(u"te"_s); // begins with it
    QCOMPARE(shown.marked(), u"Temp10"_s);
    shown.key(Qt::Key_End);
    shown.type(u"1"_s); // reads so
    QCOMPARE(shown.marked(), u"TEMP1"_s);
}

void ImageComboTypingTest::ignoresLetterCase()
{
    const ShownCombo shown({u"Ärger"_s, u"TEMP"_s, u"straße"_s});
    shown.type(u"eM"_s);
    QCOMPARE(shown.listed(), QStringList{u"TEMP"_s});
    shown.key(Qt::Key_Escape);
    QTest::sendKeyEvent(QTest::Click, shown.window, Qt::Key_unknown, u"ä"_s, Qt::NoModifier);
    QCOMPARE(shown.listed(), QStringList{u"Ärger"_s});
}

void ImageComboTypingTest::followsEveryEdit()
{
    const ShownCombo shown;
    shown.type(u"1"_s);
    QCOMPARE(shown.listed(), QStringList({u"Temp1"_s, u"Temp10"_s, u"OutTemp1"_s}));
    shown.type(u"0"_s);
    QCOMPARE(shown.listed(), QStringList{u"Temp10"_s});
    shown.key(Qt::Key_Backspace);
    QCOMPARE(shown.listed(), QStringList({u"Temp1"_s, u"Temp10"_s, u"OutTemp1"_s}));
    shown.key(Qt::Key_Home);
    shown.type(u"tte"_s);
    QCOMPARE(shown.listed(), QStringList{u"closed"_s});
    shown.key(Qt::Key_Home);
    shown.key(Qt::Key_Delete);
    QCOMPARE(shown.listed(), QStringList{u"closed"_s}); // "te1"
    shown.type(u"m"_s);
    shown.key(Qt::Key_A, Qt::ControlModifier);
    shown.type(u"u"_s);
    QCOMPARE(shown.listed(), QStringList({u"Humidity"_s, u"OutTemp1"_s}));
    shown.key(Qt::Key_Backspace); // open, so it shows all
    QCOMPARE(shown.listed().size(), 4);
}

void ImageComboTypingTest::closesWhenNothingMatches()
{
    const ShownCombo shown;
    shown.type(u"tx"_s);
    QVERIFY(!shown->isListOpen());
    QCOMPARE(shown->text(), u"tx"_s);
    shown.key(Qt::Key_Backspace);
    QCOMPARE(shown.listed().size(), 4);
    shown.key(Qt::Key_Backspace);
    shown.key(Qt::Key_Escape);
    shown.key(Qt::Key_Backspace); // nothing to take away, so nothing opens
    QVERIFY(!shown->isListOpen());
}

void ImageComboTypingTest::takesNothingForAnEmptyField()
{
    const ShownCombo shown;
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Tab}) {
        shown->setSelectedIndex(1);
        shown->setFocus();
        shown.type(u"h"_s);
        shown.key(Qt::Key_Home);
        shown.key(Qt::Key_Delete);
        QCOMPARE(shown.listed().size(), 4);
        QCOMPARE(shown.marked(), QString());
        ComboEvents events(shown.combo);
        shown.key(key);
        QCOMPARE(shown->selectedIndex(), 0);
        QCOMPARE(shown->text(), QString());
        QVERIFY(!shown->isListOpen());
        QVERIFY(!events.take().contains(u"Click"_s));
    }
}

void ImageComboTypingTest::takesTheMarkedEntryWithTab()
{
    const ShownCombo shown;
    ComboEvents events(shown.combo);
    shown.type(u"hum"_s);
    events.take();
    shown.key(Qt::Key_Tab);
    QCOMPARE(shown->text(), u"Humidity"_s);
    QCOMPARE(shown->selectedIndex(), 2);
    QVERIFY(shown.after->hasFocus());
    QCOMPARE(events.take(), u"Click 2 Humidity"_s);

    shown->setFocus(Qt::TabFocusReason);
    shown.type(u"out"_s);
    shown.key(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(shown->selectedIndex(), 4);
    QVERIFY(shown.before->hasFocus());
}

void ImageComboTypingTest::escapeBringsBackTheEntry()
{
    const ShownCombo shown;
    shown->setSelectedIndex(2);
    shown.type(u"te"_s);
    QCOMPARE(shown->selectedIndex(), 0);
    ComboEvents events(shown.combo);
    shown.key(Qt::Key_Escape);
    QVERIFY(!shown->isListOpen());
    QCOMPARE(shown->selectedIndex(), 2);
    QCOMPARE(shown->text(), u"Humidity"_s);
    QCOMPARE(events.take(), u"KeyDown 27 0, KeyPress 27, Change Humidity, KeyUp 27 0"_s);
    shown.key(Qt::Key_F4);
    shown.key(Qt::Key_Down);
    events.take();
    shown.key(Qt::Key_Escape); // nothing was changed
    QCOMPARE(events.take(), u"KeyDown 27 0, KeyPress 27, KeyUp 27 0"_s);
    QCOMPARE(shown->selectedIndex(), 2);
}

void ImageComboTypingTest::escapeBringsBackTheText()
{
    const ShownCombo shown;
    shown->setText(u"of the host"_s);
    shown.key(Qt::Key_A, Qt::ControlModifier);
    shown.type(u"te"_s);
    shown.key(Qt::Key_Escape);
    QCOMPARE(shown->text(), u"of the host"_s);
    QCOMPARE(shown->selectedIndex(), 0);
}

void ImageComboTypingTest::selectsATypedTextWhenTheFocusLeaves()
{
    const ShownCombo shown;
    shown.type(u"temp10"_s);
    shown->hidePopup();
    ComboEvents events(shown.combo);
    shown.after->setFocus();
    QCOMPARE(shown->selectedIndex(), 3);
    QCOMPARE(shown->text(), u"Temp10"_s);
    QCoreApplication::processEvents(); // told when the toolkit is done with the focus
    QCOMPARE(events.take(), u"Click 3 Temp10"_s);
    QVERIFY(!shown.field().hasSelectedText());
}

void ImageComboTypingTest::keepsATextThatIsNoEntry()
{
    const ShownCombo shown;
    shown.type(u"temp"_s);
    shown->hidePopup();
    ComboEvents events(shown.combo);
    shown.after->setFocus();
    QCOMPARE(shown->selectedIndex(), 0);
    QCOMPARE(shown->text(), u"temp"_s);
    shown->setText(u"Temp1"_s); // by the host: is left as it is
    events.take();
    shown->setFocus();
    shown.after->setFocus();
    QCOMPARE(shown->selectedIndex(), 0);
    QCOMPARE(events.take(), QString());
}

void ImageComboTypingTest::selectsATypedTextWithEnter()
{
    const ShownCombo shown;
    shown.type(u"humidity"_s);
    shown->hidePopup();
    ComboEvents events(shown.combo);
    shown.key(Qt::Key_Enter);
    QCOMPARE(events.take(), u"KeyDown 13 0, KeyPress 13, Click 2 Humidity, KeyUp 13 0"_s);
    shown.key(Qt::Key_Enter);
    QVERIFY(!events.take().contains(u"Click"_s));
}

void ImageComboTypingTest::typingBackWhatWasSelectsItAgain()
{
    const ShownCombo shown;
    shown->setSelectedIndex(2);
    shown.key(Qt::Key_End);
    shown.type(u"x"_s);
    shown.key(Qt::Key_Backspace);
    shown->hidePopup();
    shown.after->setFocus();
    QCOMPARE(shown->selectedIndex(), 2);
}

void ImageComboTypingTest::takesWhatAnInputMethodCommits()
{
    const ShownCombo shown;
    ComboEvents events(shown.combo);
    QInputMethodEvent preedit(u"hu"_s, {});
    QCoreApplication::sendEvent(shown.combo, &preedit);
    QCOMPARE(events.take(), QString());
    QInputMethodEvent commit;
    commit.setCommitString(u"hum"_s);
    QCoreApplication::sendEvent(shown.combo, &commit);
    QCOMPARE(events.take(), u"Change hum"_s);
    QCOMPARE(shown.listed(), QStringList{u"Humidity"_s});
}

void ImageComboTypingTest::takesWhatIsPasted()
{
    const ShownCombo shown;
    shown->setSelectedIndex(1);
    ComboEvents events(shown.combo);
    QGuiApplication::clipboard()->setText(u"midi"_s);
    shown.field().selectAll();
    shown.field().paste(); // as the field's menu does
    QCOMPARE(shown->selectedIndex(), 0);
    QTRY_VERIFY(!events.isEmpty());
    QCOMPARE(events.take(), u"Change midi"_s);
    QCOMPARE(shown.listed(), QStringList{u"Humidity"_s});
    shown.key(Qt::Key_Return);
    QCOMPARE(shown->selectedIndex(), 2);
}

void ImageComboTypingTest::undoesTyping()
{
    const ShownCombo shown;
    shown.type(u"hu"_s);
    shown.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(shown->text(), QString());
    QCOMPARE(shown.listed().size(), 4);
}

ORVT_TEST(ImageComboTypingTest)
#include "ImageComboTypingTest.moc"
