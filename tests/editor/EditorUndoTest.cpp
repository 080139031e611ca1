// Undo and redo of the editor, on the ring that the editors of a thread share.

#include "editor/EditorClock.h"
#include "editor/EditorHost.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QInputMethodEvent>

#include <functional>

using namespace ORVTListview;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

class EditorUndoTest : public WidgetTest
{
    Q_OBJECT

private:
    static void commit(EditorHost &host, const QString &text)
    {
        QInputMethodEvent event;
        event.setCommitString(text);
        QCoreApplication::sendEvent(&host.box(), &event);
    }
    static QString undo(EditorHost &host)
    {
        QString errMsg = u"untouched"_s;
        host.list->Undo(errMsg);
        return errMsg;
    }
    static QString redo(EditorHost &host)
    {
        QString errMsg = u"untouched"_s;
        host.list->Redo(errMsg);
        return errMsg;
    }

private Q_SLOTS:
    void afterSettingTheTextThereIsNothingToUndo()
    {
        EditorHost host;
        host.list->setCodeText(u"abc"_s);
        QVERIFY(!host.list->IsUndoAvailable());
        QVERIFY(!host.list->IsRedoAvailable());
        QCOMPARE(host.ring().FetchUndoSnapshot(0), u"abc\r\n%%%%%%\r\n0\r\n%%%%%%\r\n0"_s);
        QCOMPARE(undo(host), u"untouched"_s);
        QCOMPARE(host.box().Text(), u"abc"_s);
    }

    void aTypedBlankTakesASnapshotWhenSomethingWasTyped()
    {
        EditorHost host;
        host.setText(u"x|"_s);
        host.type(u" "_s);
        QCOMPARE(host.ring().UndoNewest(), 0);
        host.type(u"ab"_s);
        QCOMPARE(host.ring().UndoNewest(), 0);
        host.type(u" "_s);
        QCOMPARE(host.ring().UndoNewest(), 1);
        QCOMPARE(host.ring().FetchUndoSnapshot(1).section(u"\r\n"_s, 0, 0), u"x ab"_s);
        host.type(u"  "_s);
        QCOMPARE(host.ring().UndoNewest(), 1);
    }

    void otherSnapshotsClearTheTypedMark()
    {
        EditorHost host;
        host.setText(u"x|"_s);
        host.type(u"a"_s);
        host.key(Qt::Key_Backspace);
        QCOMPARE(host.ring().UndoNewest(), 1);
        host.type(u" "_s);
        QCOMPARE(host.ring().UndoNewest(), 1);
    }

    void anEmptyEditorTakesNoneButClearsTheMark()
    {
        EditorHost host;
        host.setText(u"|"_s);
        host.type(u"a"_s);
        host.key(Qt::Key_Backspace); // of "a"
        QCOMPARE(host.ring().UndoNewest(), 1);
        host.key(Qt::Key_Backspace); // of nothing
        QCOMPARE(host.ring().UndoNewest(), 1);
        host.type(u" "_s);
        QCOMPARE(host.ring().UndoNewest(), 1);
    }

    void beforeInitialisationThereAreNoSnapshots()
    {
        ORVListView list;
        list.setListviewType(dsCode);
        list.setCodeText(u"abc"_s);
        list.show();
        QTest::keyClick(list.RTextBox(), Qt::Key_Backspace);
        QCOMPARE(threadPart<UndoStore>().UndoNewest(), 0);
    }

    void undoRestoresTheSlotReached()
    {
        EditorHost host;
        host.setText(u"|"_s);
        host.type(u"a "_s);
        host.type(u"b "_s);
        QCOMPARE(undo(host), u"untouched"_s);
        QCOMPARE(host.marked(), u"a|"_s); // slot 1
        QVERIFY(host.list->IsRedoAvailable());
        redo(host);
        QCOMPARE(host.marked(), u"a b|"_s); // slot 2
        QVERIFY(!host.list->IsRedoAvailable());
        undo(host);
        undo(host);
        QCOMPARE(host.marked(), u"|"_s); // the base
        QVERIFY(!host.list->IsUndoAvailable());
    }

    void theSelectionComesBack()
    {
        EditorHost host;
        host.setText(u"one\r\ntwo|"_s);
        host.type(u"x "_s);
        host.box().setSelStart(1);
        host.box().setSelLength(6);
        host.key('X', Qt::ControlModifier);
        undo(host);
        host.key('Y', Qt::ControlModifier);
        QCOMPARE(host.marked(), u"o|ne\r\ntw|ox "_s);
    }

    void theRestoredTextIsColouredAgain()
    {
        EditorHost host;
        host.setText(u"if (temp1)|"_s);
        host.key(Qt::Key_Backspace);
        host.key(Qt::Key_Backspace);
        undo(host);
        QCOMPARE(host.box().Text(), u"IF ( Temp1 )"_s); // as colouring writes it
        QCOMPARE(host.colourOf(u"Temp1"_s), 0x0000FF);
    }

    void bracesAndBackslashesSurvive()
    {
        EditorHost host;
        host.setText(u"a\\b {c}|"_s);
        host.key(Qt::Key_Backspace);
        host.key(Qt::Key_Backspace);
        undo(host);
        QCOMPARE(host.box().Text(), u"a\\b {c}"_s);
    }

    void typedTextIsNotLostByUndo()
    {
        EditorHost host;
        host.setText(u"base |"_s);
        host.type(u"one two"_s);
        undo(host);
        QCOMPARE(host.box().Text(), u"base "_s);
        QVERIFY(!host.list->IsUndoAvailable());
        redo(host);
        QCOMPARE(host.box().Text(), u"base one"_s);
        redo(host); // no slot lies ahead
        QCOMPARE(host.box().Text(), u"base one two"_s);
    }

    void typedTextComesBackByTheCallToo()
    {
        EditorHost host;
        host.setText(u"base |"_s);
        host.type(u"one two"_s);
        undo(host);
        QVERIFY(host.list->restoreUnsavedText());
        QCOMPARE(host.box().Text(), u"base one two"_s);
        QVERIFY(!host.list->restoreUnsavedText());
    }

    // Spelling and blanks as they were, however often it goes and comes.
    void whatWasKeptComesBackAsItWas()
    {
        EditorHost host;
        host.setText(u"x |"_s);
        QGuiApplication::clipboard()->setText(u"{\\rtf1 if temp1 ( and )\\tab y}"_s);
        host.key(Qt::Key_V, Qt::ControlModifier);
        const QString pasted = u"x if temp1 ( and )\ty"_s;
        QCOMPARE(host.box().Text(), pasted);
        for (int i = 0; i < 2; ++i) {
            undo(host);
            QVERIFY(host.box().Text() != pasted);
            redo(host);
            redo(host);
            QCOMPARE(host.box().Text(), pasted);
            QCOMPARE(host.colourOf(u"temp1"_s), host.settings.InputColor);
        }
        undo(host);
        QVERIFY(host.list->restoreUnsavedText());
        QCOMPARE(host.box().Text(), pasted);
    }

    void whatWasKeptOutlastsAnEdit()
    {
        EditorHost host;
        host.setText(u"base |"_s);
        host.type(u"one two"_s);
        undo(host);
        host.type(u"x"_s);
        QVERIFY(host.list->restoreUnsavedText());
        QCOMPARE(host.marked(), u"base one two|"_s);
        redo(host); // to the slot that lies ahead
        redo(host);
        redo(host);
        QCOMPARE(host.box().Text(), u"xbase "_s); // the base has the caret at 0
    }

    void anotherProgramEndsWhatWasKept()
    {
        EditorHost host;
        host.setText(u"one|"_s);
        host.list->RTextSelectAll();
        host.type(u"x"_s);
        host.list->setCodeText(u"two"_s);
        QVERIFY(!host.list->restoreUnsavedText());
        host.list->RTextSelectAll();
        host.type(u"x"_s);
        host.list->setCodeTextRTF(host.list->GetColorText(u"three"_s));
        QVERIFY(!host.list->restoreUnsavedText());
        host.list->RTextSelectAll();
        host.type(u"x"_s);
        host.list->ClearUndoHistory();
        QVERIFY(!host.list->restoreUnsavedText());
    }

    void whatTakesASelectionAwayKeepsTheText_data()
    {
        QTest::addColumn<EditorAct>("take");
        QTest::addColumn<QString>("left");
        const auto row = [](const char *name, const QString &left, auto take) {
            QTest::newRow(name) << EditorAct(take) << left;
        };
        row("letter", u"x"_s, [](EditorHost &host) { host.type(u"x"_s); });
        row("blank", u" "_s, [](EditorHost &host) { host.type(u" "_s); });
        row("Shift+Backspace", u""_s,
            [](EditorHost &host) { host.key(Qt::Key_Backspace, Qt::ShiftModifier); });
        row("committed letter", u"x"_s, [](EditorHost &host) { commit(host, u"x"_s); });
        row("committed word", u"xyz"_s, [](EditorHost &host) { commit(host, u"xyz"_s); });
        row("menu's cut", u""_s, [](EditorHost &host) { host.list->RTextCut(); });
        row("menu's paste", u"xyz"_s, [](EditorHost &host) {
            QString text = u"xyz"_s;
            host.list->RTextPaste(text);
        });
        row("RTF", u"xyz"_s, [](EditorHost &host) {
            QString text = u"{\\rtf1 xyz}"_s;
            host.list->RTextPaste(text);
        });
        row("Clear", u""_s, [](EditorHost &host) { host.list->Clear(); });
        row("box", u"xyz"_s, [](EditorHost &host) { host.box().setSelText(u"xyz"_s); });
    }
    void whatTakesASelectionAwayKeepsTheText()
    {
        QFETCH(const EditorAct, take);
        QFETCH(const QString, left);
        EditorHost host;
        host.setText(u"a program\r\nof two lines"_s);
        host.key('A', Qt::ControlModifier);
        take(host);
        QCOMPARE(host.box().Text(), left);
        QVERIFY(!host.list->IsUndoAvailable());
        QCOMPARE(host.ring().UndoNewest(), 0);
        for (int round = 0; round < 2; ++round) {
            host.key('Z', Qt::ControlModifier);
            QCOMPARE(host.marked(), u"|a program\r\nof two lines|"_s);
            host.key('Y', Qt::ControlModifier);
            QCOMPARE(host.box().Text(), left);
        }
        QVERIFY(host.list->restoreUnsavedText());
        QCOMPARE(host.box().Text(), u"a program\r\nof two lines"_s);
        QVERIFY(!host.list->IsUndoAvailable());
        QVERIFY(!host.list->IsRedoAvailable());
    }

    void itComesBackBehindTheSnapshotsTakenSince()
    {
        EditorHost host;
        host.setText(u"|"_s);
        host.box().setSelText(u"a program"_s); // of which there is no base
        host.list->RTextSelectAll();
        host.type(u"x y z"_s);
        while (host.list->IsUndoAvailable())
            undo(host);
        QCOMPARE(host.box().Text(), u""_s); // the base
        QVERIFY(host.list->restoreUnsavedText());
        QCOMPARE(host.box().Text(), u"x y z"_s);
        QVERIFY(host.list->restoreUnsavedText());
        QCOMPARE(host.box().Text(), u"a program"_s);
    }

    void aTextThatHasStoodIsKeptWhenTypingGoesOn()
    {
        EditorHost host;
        auto time = std::chrono::steady_clock::now();
        threadPart<EditorClock>().now = [&time] { return time; };
        host.setText(u"base|"_s);
        time += 4999ms;
        host.type(u"x"_s);
        QVERIFY(!host.list->restoreUnsavedText());
        time += 4999ms;
        host.type(u"y"_s);
        QVERIFY(!host.list->restoreUnsavedText());
        time += 5000ms;
        host.type(u"z"_s);
        undo(host);
        QCOMPARE(host.box().Text(), u"basexy"_s);
        redo(host);
        QCOMPARE(host.box().Text(), u"basexyz"_s);
        QCOMPARE(host.ring().UndoNewest(), 0);
    }

    void anotherAppearanceForgetsNothing()
    {
        EditorHost host;
        host.setText(u"a program|"_s);
        host.list->RTextSelectAll();
        host.type(u"x"_s);
        host.list->Init_RichTextBox(host.settings);
        undo(host);
        QCOMPARE(host.box().Text(), u"a program"_s);
    }

    void aTextThatItsSlotCannotGiveBackIsKept()
    {
        const QString text = u"a\r\n%%%%%%\r\nb"_s;
        EditorHost host;
        host.setText(u"|"_s);
        host.type(u"x "_s);
        host.list->RTextSelectAll();
        host.box().setSelText(text);
        host.key(Qt::Key_Return);
        host.key(Qt::Key_Return);
        QVERIFY(undo(host) != u"untouched"_s);
        QVERIFY(host.list->restoreUnsavedText());
        QCOMPARE(host.box().Text(), text);
    }

    void aSnapshotAfterAnUndoDropsWhatLayAhead()
    {
        EditorHost host;
        host.setText(u"|"_s);
        host.type(u"a b c "_s);
        undo(host);
        QVERIFY(host.list->IsRedoAvailable());
        host.type(u"z "_s);
        QVERIFY(!host.list->IsRedoAvailable());
    }

    void fortyNineStepsBackAfterTheRingHasWrapped()
    {
        EditorHost host;
        host.setText(u"|"_s);
        for (int i = 0; i < 50; ++i)
            host.type(u"a "_s);
        QVERIFY(host.ring().UndoWrapped());
        int steps = 0;
        while (host.list->IsUndoAvailable()) {
            undo(host);
            ++steps;
        }
        QCOMPARE(steps, 49);
        QVERIFY(host.ring().isSound());
    }

    void inAListTypeNothingHappens()
    {
        EditorHost host;
        host.setText(u"|"_s);
        host.type(u"a b "_s);
        const QString text = host.box().Text();
        host.list->setListviewType(dsInput);
        QVERIFY(!host.list->IsUndoAvailable());
        QVERIFY(!host.list->IsRedoAvailable());
        undo(host);
        redo(host);
        QVERIFY(!host.list->restoreUnsavedText());
        QCOMPARE(host.box().Text(), text);
        QCOMPARE(host.ring().UndoCurrent(), 2);
    }

    void editorsOfAThreadShareTheRing()
    {
        EditorHost host;
        host.setText(u"|"_s);
        host.type(u"first second "_s);
        ORVListView other;
        other.setListviewType(dsCode);
        QVERIFY(other.IsUndoAvailable());
        QString errMsg;
        other.Undo(errMsg);
        QCOMPARE(other.CodeText(), u"first"_s);
    }

    void aDamagedSlotIsReportedAndTheTextStays_data()
    {
        QTest::addColumn<QString>("slot");
        QTest::newRow("two fields") << u"%a\r\n%%%%%%\r\n0"_s;
        QTest::newRow("separator in the text")
            << u"%a\r\n%%%%%%\r\nb\r\n%%%%%%\r\n0\r\n%%%%%%\r\n0"_s;
        QTest::newRow("no number") << u"%a\r\n%%%%%%\r\nx\r\n%%%%%%\r\n0"_s;
        QTest::newRow("corrupt") << u"*9:abc"_s;
    }
    void aDamagedSlotIsReportedAndTheTextStays()
    {
        QFETCH(const QString, slot);
        EditorHost host;
        host.setText(u"|"_s);
        host.type(u"a b "_s);
        host.ring().setUndoSlot(1, slot);
        QString errMsg;
        host.list->Undo(errMsg);
        QVERIFY(!errMsg.isEmpty());
        QCOMPARE(host.marked(), u"a b |"_s);
        QCOMPARE(host.ring().UndoCurrent(), 1);
        QVERIFY(!host.ring().IsRestoringUndo());
    }

    void decompressionFailuresCarryTheirMessage()
    {
        EditorHost host;
        host.setText(u"|"_s);
        host.type(u"a b "_s);
        host.ring().setUndoSlot(1, u"*9:abc"_s);
        QString errMsg;
        host.list->Undo(errMsg);
        QCOMPARE(errMsg, u"Cannot uncompress corrupt data"_s);
    }

    void anEmptySlotLeavesTheText()
    {
        EditorHost host;
        host.setText(u"|"_s);
        host.type(u"a b "_s);
        host.ring().setUndoSlot(1, QString());
        QCOMPARE(undo(host), u"untouched"_s);
        QCOMPARE(host.box().Text(), u"a b "_s);
    }

    void aSelectionBeyondTheTextIsClamped()
    {
        EditorHost host;
        host.setText(u"|"_s);
        host.type(u"a b "_s);
        host.ring().setUndoSlot(1, u"%ab\r\n%%%%%%\r\n1\r\n%%%%%%\r\n99"_s);
        undo(host);
        QCOMPARE(host.marked(), u"a|b|"_s);
    }

    void settingTheTextAgainReplacesTheBaseOnly()
    {
        EditorHost host;
        host.setText(u"one|"_s);
        host.type(u"x "_s);
        host.list->setCodeText(u"two"_s);
        QCOMPARE(host.ring().UndoCurrent(), 1);
        QVERIFY(host.ring().FetchUndoSnapshot(0).startsWith(u"two\r\n"_s));
        undo(host);
        QCOMPARE(host.box().Text(), u"two"_s);
    }

    void clearingTheHistoryEmptiesTheRing()
    {
        EditorHost host;
        host.setText(u"|"_s);
        host.type(u"a b "_s);
        host.list->ClearUndoHistory();
        QVERIFY(!host.list->IsUndoAvailable());
        QCOMPARE(host.box().Text(), u"a b "_s);
        host.type(u"c "_s);
        QVERIFY(host.list->IsUndoAvailable());
    }

    void longSnapshotsAreEncodedWhenIdle()
    {
        EditorHost host;
        host.setText(QString(1000, u'x') + u'|');
        host.type(u"y "_s);
        QTRY_VERIFY(!host.ring().isEncodingPending());
        QVERIFY(host.ring().UndoSlots(1).startsWith(u'*'));
        undo(host);
        QCOMPARE(host.box().Text(), QString(1000, u'x'));
    }

    void theStateIsNotMarkedAsRestoringAfterwards()
    {
        EditorHost host;
        host.setText(u"|"_s);
        host.type(u"a b "_s);
        undo(host);
        QVERIFY(!host.ring().IsRestoringUndo());
        const qint16 newest = host.ring().UndoNewest();
        QCOMPARE(newest, 2); // restoring pushed nothing
    }
};

ORVT_TEST(EditorUndoTest)
#include "EditorUndoTest.moc"
