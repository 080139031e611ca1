// The find dialog as users use it: its controls and modes, finding, options and
// histories.

#include "find/FindFixture.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtWidgets/QAbstractItemView>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class FindDialogTest : public WidgetTest
{
    Q_OBJECT

private:
    static QString plain(QString caption) { return caption.remove(u'&'); }

    static QWidget *focused() { return QApplication::focusWidget(); }

    // The object names that Tab visits, from the search field on and back to it.
    static QStringList tabOrder(FindHost &host)
    {
        QStringList names;
        host.combo(0).setFocus();
        do {
            names << focused()->objectName();
            QTest::keyClick(focused(), Qt::Key_Tab);
        } while (focused() != &host.combo(0) && names.size() < 20);
        return names;
    }

private Q_SLOTS:
    void controlsHaveTheirCaptions()
    {
        FindHost host;
        host.open(u""_s, FindHost::Replace);
        QCOMPARE(plain(host.control<QLabel>("lbl0").text()), u"Find What"_s);
        QCOMPARE(plain(host.control<QLabel>("lbl1").text()), u"Replace With"_s);
        QCOMPARE(plain(host.button(0).text()), u"Find Next"_s);
        QCOMPARE(plain(host.button(1).text()), u"Close"_s);
        QCOMPARE(plain(host.button(2).text()), u"Replace"_s);
        QCOMPARE(plain(host.button(3).text()), u"Replace All"_s);
        QCOMPARE(plain(host.option(0).text()), u"Find Whole Word Only"_s);
        QCOMPARE(plain(host.option(1).text()), u"Match Case"_s);
        QCOMPARE(host.option(0).toolTip(),
                 u"Searches for the full word by itself and not as part of a larger word."_s);
        QCOMPARE(host.option(1).toolTip(),
                 u"Finds all occurrences with the exact combination of uppercase and lowercase "
                 "letters specified in the Find What box."_s);
        auto &frame = host.control<QFrame>("Frame1");
        QVERIFY(frame.isAncestorOf(&host.option(0)) && frame.isAncestorOf(&host.option(1)));
        QVERIFY(host.combo(0).isEditable() && host.combo(1).isEditable());
    }

    void findModeHasNoFieldsForReplacing()
    {
        FindHost host;
        host.open(u""_s);
        QCOMPARE(host.dialog().windowTitle(), u"Find"_s);
        QVERIFY(!host.control<QLabel>("lbl1").isVisible());
        QVERIFY(!host.combo(1).isVisible());
        QVERIFY(!host.button(3).isVisible());
        QCOMPARE(plain(host.button(2).text()), u"..."_s);
    }

    void replaceModeHasThem()
    {
        FindHost host;
        host.open(u""_s, FindHost::Replace);
        QCOMPARE(host.dialog().windowTitle(), u"Replace"_s);
        QVERIFY(host.control<QLabel>("lbl1").isVisible());
        QVERIFY(host.combo(1).isVisible());
        QVERIFY(host.button(3).isVisible());
    }

    void inFindModeTheReplaceButtonOnlyShowsTheFields()
    {
        FindHost host;
        host.open(u"a |T1| b"_s);
        host.histories().replacements.add(u"old"_s);
        host.replace();
        QVERIFY(host.dialog().isReplaceMode());
        QCOMPARE(host.dialog().windowTitle(), u"Replace"_s);
        QCOMPARE(host.marked(), u"a |T1| b"_s);
        QCOMPARE(host.entries(1), QStringList({u"old"_s}));
        QCOMPARE(host.combo(1).currentText(), QString());
        QCOMPARE(host.combo(0).currentText(), u"T1"_s);
        QVERIFY(host.combo(1).hasFocus());
        QCOMPARE(host.status(), QString());
    }

    void aModeGoesBackAtTheNextOpening()
    {
        FindHost host;
        host.open(u"x"_s, FindHost::Replace);
        host.reopen();
        QVERIFY(!host.dialog().isReplaceMode());
        QVERIFY(!host.combo(1).isVisible());
        host.reopen(FindHost::Replace);
        QVERIFY(host.combo(1).isVisible());
    }

    void findsOneMatchAfterTheOther()
    {
        FindHost host;
        host.open(u"|x T1 y\r\nt1 z"_s);
        host.enter(0, u"T1"_s);
        host.findNext();
        QCOMPARE(host.marked(), u"x |T1| y\r\nt1 z"_s);
        QCOMPARE(host.status(), u"Found in Row: 1, Col: 3"_s);
        host.findNext();
        QCOMPARE(host.marked(), u"x T1 y\r\n|t1| z"_s);
        QCOMPARE(host.status(), u"Found in Row: 2, Col: 1"_s);
    }

    void beginsOneCharacterBehindTheSelectionsStart_data()
    {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QString>("found");
        QTest::newRow("selection") << u"|aa| aa"_s << u"a|a| aa"_s;
        QTest::newRow("caret") << u"|a a"_s << u"a |a|"_s;
        QTest::newRow("caret before") << u"x| a"_s << u"x |a|"_s;
        QTest::newRow("several lines") << u"|a\r\nx| a"_s << u"a\r\nx |a|"_s;
    }
    void beginsOneCharacterBehindTheSelectionsStart()
    {
        QFETCH(const QString, program);
        QFETCH(const QString, found);
        FindHost host;
        host.open(program);
        host.enter(0, u"a"_s);
        host.findNext();
        QCOMPARE(host.marked(), found);
    }

    void beginsAtTheFrontAfterNothingWasFound()
    {
        FindHost host;
        host.open(u"T1 |x"_s);
        host.enter(0, u"t1"_s);
        host.findNext();
        QCOMPARE(host.status(), u"Not found!"_s);
        QCOMPARE(host.marked(), u"T1 |x"_s);
        host.findNext();
        QCOMPARE(host.marked(), u"|T1| x"_s);
        host.findNext();
        QCOMPARE(host.marked(), u"|T1 x"_s); // the selection is taken away
        QCOMPARE(host.status(), u"Not found!"_s);
    }

    void anEmptyTextIsNotSearchedFor()
    {
        FindHost host;
        host.open(u"a |b| c"_s);
        host.enter(0, QString());
        host.findNext();
        QCOMPARE(host.marked(), u"a |b| c"_s);
        QCOMPARE(host.status(), QString());
        QCOMPARE(host.histories().searched.texts(), QStringList({u"b"_s}));
    }

    void aMatchAtTheVeryEndEndsTheSearch()
    {
        FindHost host;
        host.open(u"|x a"_s);
        host.enter(0, u"a"_s);
        host.findNext();
        QCOMPARE(host.marked(), u"x |a|"_s);
        host.findNext();
        QCOMPARE(host.status(), u"Not found!"_s);
        host.findNext();
        QCOMPARE(host.marked(), u"x |a|"_s);
    }

    void wholeWordsHaveNoUnderscoreBesideThem()
    {
        FindHost host;
        host.open(u"|; T1_A T1"_s);
        host.enter(0, u"T1"_s);
        host.click(host.option(0));
        host.findNext();
        QCOMPARE(host.marked(), u"; T1_A |T1|"_s);
        host.findNext();
        QCOMPARE(host.status(), u"Not found!"_s);
        host.click(host.option(0));
        host.findNext();
        QCOMPARE(host.marked(), u"; |T1|_A T1"_s);
    }

    void letterCaseCountsWhenAskedFor()
    {
        FindHost host;
        host.open(u"|; t1 T1"_s);
        host.enter(0, u"T1"_s);
        host.click(host.option(1));
        host.findNext();
        QCOMPARE(host.marked(), u"; t1 |T1|"_s);
        host.click(host.option(1));
        host.findNext();
        host.findNext();
        QCOMPARE(host.marked(), u"; |t1| T1"_s);
    }

    void optionsAreUncheckedAtEachOpening()
    {
        FindHost host;
        host.open(u"|; xT1 t1"_s);
        host.click(host.option(0));
        host.click(host.option(1));
        host.reopen();
        QVERIFY(!host.option(0).isChecked() && !host.option(1).isChecked());
        host.enter(0, u"T1"_s);
        host.findNext();
        QCOMPARE(host.marked(), u"; x|T1| t1"_s);
        host.findNext();
        QCOMPARE(host.marked(), u"; xT1 |t1|"_s);
    }

    void opensWithTheSelectedText_data()
    {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QString>("shown");
        QTest::newRow("word") << u"a |T1| b"_s << u"T1"_s;
        QTest::newRow("nothing") << u"a |T1 b"_s << QString();
        QTest::newRow("several lines") << u"|a\r\nb|"_s << QString();
        QTest::newRow("a line end") << u"a|\r\n|b"_s << QString();
        QTest::newRow("blanks") << u"a|  |b"_s << u"  "_s;
    }
    void opensWithTheSelectedText()
    {
        QFETCH(const QString, program);
        QFETCH(const QString, shown);
        FindHost host;
        host.histories().searched.add(u"old"_s);
        host.open(program);
        QCOMPARE(host.combo(0).currentText(), shown);
        QStringList entries{u"old"_s};
        if (!shown.isEmpty())
            entries << shown;
        QCOMPARE(host.entries(0), entries);
        QCOMPARE(host.histories().searched.texts(), entries);
        QCOMPARE(host.combo(0).currentIndex(), shown.isEmpty() ? -1 : 1);
    }

    void aSelectedTextThatIsAnEntryAlreadyChoosesNone()
    {
        FindHost host;
        host.histories().searched.add(u"t1"_s);
        host.open(u"|T1|"_s);
        QCOMPARE(host.entries(0), QStringList({u"t1"_s}));
        QCOMPARE(host.combo(0).currentIndex(), -1);
        QCOMPARE(host.combo(0).currentText(), u"T1"_s);
    }

    void whatWasSearchedForIsAnEntryOnce()
    {
        FindHost host;
        host.open(u"|x T1"_s);
        for (const QString &text : {u"T1"_s, u"nowhere"_s, u"t1"_s, u"T1"_s}) {
            host.enter(0, text);
            host.findNext();
            QCOMPARE(host.combo(0).currentText(), text);
        }
        QCOMPARE(host.entries(0), QStringList({u"T1"_s, u"nowhere"_s}));
        QCOMPARE(host.histories().searched.texts(), host.entries(0));
    }

    void historiesOutliveTheDialog()
    {
        FindHost host;
        host.open(u"|x a"_s, FindHost::Replace);
        host.enter(u"a"_s, u"b"_s);
        host.findNext();
        host.replace();
        host.click(host.button(1));
        QVERIFY(!host.dialog().isVisible());
        host.reopen(FindHost::Replace);
        QCOMPARE(host.entries(0), QStringList({u"a"_s}));
        QCOMPARE(host.entries(1), QStringList({u"b"_s}));
        QCOMPARE(host.combo(0).currentText(), QString());
        QCOMPARE(host.combo(1).currentText(), QString());
        QCOMPARE(host.status(), QString());
    }

    void anEntryIsChosenByMouse()
    {
        FindHost host;
        host.histories().searched.add(u"one"_s);
        host.histories().searched.add(u"two"_s);
        host.open(u"|x two one"_s);
        host.combo(0).showPopup();
        QAbstractItemView *entries = host.combo(0).view();
        const QModelIndex second = entries->model()->index(1, 0);
        QTest::mouseClick(entries->viewport(), Qt::LeftButton, {},
                          entries->visualRect(second).center());
        QCOMPARE(host.combo(0).currentText(), u"two"_s);
        host.findNext();
        QCOMPARE(host.marked(), u"x |two| one"_s);
    }

    void typingIsNotCompletedFromTheHistory()
    {
        FindHost host;
        host.histories().searched.add(u"Temperature"_s);
        host.open(u"|x Te"_s);
        host.enter(0, u"Te"_s);
        QCOMPARE(host.combo(0).currentText(), u"Te"_s);
        host.findNext();
        QCOMPARE(host.marked(), u"x |Te|"_s);
    }

    void enterFindsNextFromEveryFieldAndOption()
    {
        FindHost host;
        host.open(u"|; a a a a"_s, FindHost::Replace);
        host.enter(0, u"a"_s);
        QTest::keyClick(host.combo(0).lineEdit(), Qt::Key_Return);
        QCOMPARE(host.marked(), u"; |a| a a a"_s);
        QTest::keyClick(host.combo(1).lineEdit(), Qt::Key_Enter);
        QCOMPARE(host.marked(), u"; a |a| a a"_s);
        QTest::keyClick(&host.option(0), Qt::Key_Return);
        QCOMPARE(host.marked(), u"; a a |a| a"_s);
        QTest::keyClick(&host.button(0), Qt::Key_Return);
        QCOMPARE(host.marked(), u"; a a a |a|"_s);
        QCOMPARE(host.entries(0), QStringList({u"a"_s}));
        QCOMPARE(host.entries(1), QStringList());
    }

    void escapeCloses()
    {
        FindHost host;
        host.open(u"x"_s);
        QTest::keyClick(host.combo(0).lineEdit(), Qt::Key_Escape);
        QVERIFY(!host.dialog().isVisible());
    }

    void tabGoesThroughAllControlsInOrder()
    {
        FindHost host;
        host.open(u"x"_s, FindHost::Replace);
        QCOMPARE(tabOrder(host).join(u' '), u"Cbo0 Cbo1 Chk0 Chk1 Cmd0 Cmd1 Cmd2 Cmd3"_s);
        host.reopen();
        QCOMPARE(tabOrder(host).join(u' '), u"Cbo0 Chk0 Chk1 Cmd0 Cmd1 Cmd2"_s);
    }

    void theSearchFieldHasTheFocusWithItsTextSelected()
    {
        FindHost host;
        host.open(u"a |T1| b"_s);
        QVERIFY(host.combo(0).hasFocus());
        QCOMPARE(host.combo(0).lineEdit()->selectedText(), u"T1"_s);
    }

    void accessKeysWorkWithAlt()
    {
        FindHost host;
        host.open(u"|x T1 T1"_s, FindHost::Replace);
        QWidget *dialog = &host.dialog();
        host.option(0).setFocus();
        QTest::keyClick(dialog, Qt::Key_F, Qt::AltModifier); // Find What
        QVERIFY(host.combo(0).hasFocus());
        host.enter(0, u"T1"_s);
        QTest::keyClick(dialog, Qt::Key_N, Qt::AltModifier); // Find Next
        QTRY_COMPARE(host.marked(), u"x |T1| T1"_s);
        QTest::keyClick(dialog, Qt::Key_W, Qt::AltModifier); // Find Whole Word Only
        QTRY_VERIFY(host.option(0).isChecked());
        QTest::keyClick(dialog, Qt::Key_M, Qt::AltModifier); // Match Case
        QTRY_VERIFY(host.option(1).isChecked());
        QTest::keyClick(dialog, Qt::Key_R, Qt::AltModifier); // Replace With
        QVERIFY(host.combo(1).hasFocus());
        QTest::keyClick(dialog, Qt::Key_C, Qt::AltModifier); // Close
        QTRY_VERIFY(!dialog->isVisible());
    }

    void textsOfAnyCharactersAreFound_data()
    {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QString>("wanted");
        QTest::addColumn<QString>("found");
        const QString pair = u"\U0001d49c"_s;
        QTest::newRow("surrogates") << u"|x "_s + pair << pair << u"x |"_s + pair + u'|';
        QTest::newRow("no half of a pair") << u"|x "_s + pair << pair.first(1) << u"|x "_s + pair;
        QTest::newRow("tab") << u"|x a\tb"_s << u"a\tb"_s << u"x |a\tb|"_s;
        QTest::newRow("line end") << u"|x a\r\nb"_s << u"a\nb"_s << u"x |a\r\nb|"_s;
        QTest::newRow("wildcards") << u"|x a.* [b"_s << u".* ["_s << u"x a|.* [|b"_s;
    }
    void textsOfAnyCharactersAreFound()
    {
        QFETCH(const QString, program);
        QFETCH(const QString, wanted);
        QFETCH(const QString, found);
        FindHost host;
        host.open(program);
        host.combo(0).setEditText(wanted);
        host.findNext();
        QCOMPARE(host.marked(), found);
    }

    void theFirstTextIsNotPassedOverWhenTheProgramShrinks()
    {
        FindHost host;
        host.open(u"|x a a a a"_s);
        host.enter(0, u"a"_s);
        host.findNext();
        host.findNext();
        host.setText(u"a"_s);
        host.findNext();
        QCOMPARE(host.status(), u"Not found!"_s);
        host.findNext();
        QCOMPARE(host.marked(), u"|a|"_s);
    }
};

ORVT_TEST(FindDialogTest)
#include "FindDialogTest.moc"
