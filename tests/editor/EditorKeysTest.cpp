// What becomes of each key in the editor, driven by real key events.

#include "editor/EditorHost.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtGui/QShortcut>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class EditorKeysTest : public WidgetTest
{
    Q_OBJECT

private:
    static QString clipboard() { return QGuiApplication::clipboard()->text(); }
    static void setClipboard(const QString &text) { QGuiApplication::clipboard()->setText(text); }

private Q_SLOTS:
    void f6AsksToAnalyse()
    {
        EditorHost host;
        host.setText(u"x|"_s);
        QSignalSpy analyze(host.list, &ORVListView::QueryAnalyze);
        QSignalSpy compile(host.list, &ORVListView::QueryCompile);
        host.key(Qt::Key_F6);
        QCOMPARE(analyze.size(), 1);
        QCOMPARE(compile.size(), 0);
        host.key(Qt::Key_F6, Qt::ControlModifier);
        QCOMPARE(analyze.size(), 1);
        QCOMPARE(compile.size(), 1);
        QCOMPARE(host.marked(), u"x|"_s);
    }

    void f1IsRaisedToTheHost()
    {
        EditorHost host;
        QList<int> keys;
        QObject::connect(host.list, &ORVListView::KeyDown, host.list,
                         [&](qint16 &keyCode, qint16 &shift) { keys << keyCode << shift; });
        host.key(Qt::Key_F1);
        QCOMPARE(keys, (QList<int>{112, 0}));
        host.type(u"a"_s);
        host.key(Qt::Key_F2);
        host.key(Qt::Key_F6);
        QCOMPARE(keys.size(), 2); // the host hears of no other key
    }

    void theHostCanSwallowF1()
    {
        EditorHost host;
        QObject::connect(host.list, &ORVListView::KeyDown, host.list,
                         [](qint16 &keyCode, qint16 &) { keyCode = 0; });
        QKeyEvent press(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
        QApplication::sendEvent(&host.box(), &press);
        QVERIFY(press.isAccepted());
    }

    void formattingShortcutsDoNothing_data()
    {
        QTest::addColumn<int>("key");
        for (const char *key : {"B", "E", "L", "R", "I", "U", "K", "D", "J", "M", "O", "1", "8"})
            QTest::newRow(key) << int(*key);
    }
    void formattingShortcutsDoNothing()
    {
        QFETCH(const int, key);
        EditorHost host;
        host.setText(u"IF |abc| x"_s);
        const ColouredText before = host.box().coloured(0, 8);
        host.key(key, Qt::ControlModifier);
        QCOMPARE(host.marked(), u"IF |abc| x"_s);
        QCOMPARE(host.box().coloured(0, 8), before);
        host.key(key, Qt::ControlModifier | Qt::ShiftModifier);
        host.key(key, Qt::AltModifier);
        QCOMPARE(host.marked(), u"IF |abc| x"_s);
    }

    void ctrlWithMovingKeysMoves()
    {
        EditorHost host;
        host.setText(u"one two\r\nthree|"_s);
        host.key(Qt::Key_Home, Qt::ControlModifier);
        QCOMPARE(host.marked(), u"|one two\r\nthree"_s);
        host.key(Qt::Key_Right, Qt::ControlModifier);
        QCOMPARE(host.marked(), u"one |two\r\nthree"_s);
        host.key(Qt::Key_Left, Qt::ControlModifier);
        QCOMPARE(host.marked(), u"|one two\r\nthree"_s);
        host.key(Qt::Key_End, Qt::ControlModifier);
        QCOMPARE(host.marked(), u"one two\r\nthree|"_s);
        host.key(Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(host.marked(), u"one two\r\n|three|"_s);
    }

    void shiftMakesCapitalsAndSelections()
    {
        EditorHost host;
        host.setText(u"|"_s);
        QTest::keyClick(&host.box(), 'A', Qt::ShiftModifier);
        QTest::keyClick(&host.box(), 'b');
        QCOMPARE(host.marked(), u"Ab|"_s);
        host.key(Qt::Key_Left, Qt::ShiftModifier);
        QCOMPARE(host.marked(), u"A|b|"_s);
    }

    void ctrlAKeepsTheTextAndSelectsIt()
    {
        EditorHost host;
        host.setText(u"ab\r\nc|d"_s);
        host.key('A', Qt::ControlModifier);
        QCOMPARE(host.marked(), u"|ab\r\ncd|"_s);
    }

    void ctrlCCopiesPlainText_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Ctrl+C") << int('C');
        QTest::newRow("Ctrl+Insert") << int(Qt::Key_Insert);
    }
    void ctrlCCopiesPlainText()
    {
        QFETCH(const int, key);
        EditorHost host;
        host.setText(u"a|b\r\nc|d"_s);
        setClipboard(u"old"_s);
        host.key(key, Qt::ControlModifier);
        QCOMPARE(clipboard(), u"b\nc"_s); // the toolkit knows the platform's line ends
        QCOMPARE(host.marked(), u"a|b\r\nc|d"_s);
        host.box().setSelLength(0);
        host.key(key, Qt::ControlModifier);
        QCOMPARE(clipboard(), QString()); // copying nothing clears
    }

    void ctrlXCutsAndTakesOneSnapshot()
    {
        EditorHost host;
        host.setText(u"a|b|c"_s);
        host.key('X', Qt::ControlModifier);
        QCOMPARE(clipboard(), u"b"_s);
        QCOMPARE(host.marked(), u"a|c"_s);
        QCOMPARE(host.ring().UndoNewest(), 1);
        QCOMPARE(host.ring().FetchUndoSnapshot(1), u"abc\r\n%%%%%%\r\n1\r\n%%%%%%\r\n1"_s);
    }

    void ctrlXWithoutSelectionClearsTheClipboardOnly()
    {
        EditorHost host;
        host.setText(u"a|bc"_s);
        setClipboard(u"old"_s);
        host.key('X', Qt::ControlModifier);
        QCOMPARE(clipboard(), QString());
        QCOMPARE(host.marked(), u"a|bc"_s);
        QCOMPARE(host.ring().UndoNewest(), 0);
    }

    void shiftDeleteCutsAndShiftInsertPastes()
    {
        EditorHost host;
        host.setText(u"a|b|c"_s);
        host.key(Qt::Key_Delete, Qt::ShiftModifier);
        QCOMPARE(clipboard(), u"b"_s);
        QCOMPARE(host.marked(), u"a|c"_s);
        host.key(Qt::Key_Insert, Qt::ShiftModifier);
        QCOMPARE(host.marked(), u"ab|c"_s);
    }

    void ctrlVTakesTheSnapshotRaisesTheEventAndPastes()
    {
        EditorHost host;
        host.setText(u"a||"_s);
        setClipboard(u"if x"_s);
        QStringList seen;
        QObject::connect(host.list, &ORVListView::UpdateUndoMenu, host.list, [&] {
            seen << host.box().Text() << QString::number(host.ring().UndoNewest());
        });
        host.key('V', Qt::ControlModifier);
        QCOMPARE(seen, QStringList({u"a"_s, u"1"_s})); // after the snapshot, before the text
        QCOMPARE(host.marked(), u"aIF x|"_s);
    }

    void pastingWhatIsSelectedTakesNoSnapshot()
    {
        EditorHost host;
        host.setText(u"|if| x"_s);
        setClipboard(u"if"_s);
        QSignalSpy menu(host.list, &ORVListView::UpdateUndoMenu);
        host.key('V', Qt::ControlModifier);
        QCOMPARE(menu.size(), 0);
        QCOMPARE(host.ring().UndoNewest(), 0);
        QCOMPARE(host.marked(), u"IF| x"_s);
        host.setText(u"|a\r\nb|"_s);
        host.key('C', Qt::ControlModifier);
        host.key('V', Qt::ControlModifier);
        QCOMPARE(menu.size(), 0);
        QCOMPARE(host.marked(), u"a\r\nb|"_s);
    }

    void anEmptyClipboardPastesNothing()
    {
        EditorHost host;
        host.setText(u"|if| x"_s);
        QGuiApplication::clipboard()->clear();
        QSignalSpy menu(host.list, &ORVListView::UpdateUndoMenu);
        host.key('V', Qt::ControlModifier);
        QCOMPARE(menu.size(), 0);
        QCOMPARE(host.ring().UndoNewest(), 0);
        QCOMPARE(host.marked(), u"|if| x"_s);
    }

    void ctrlZAndCtrlYStepThroughTheRing()
    {
        EditorHost host;
        host.setText(u"|"_s);
        host.type(u"a b c "_s); // snapshots before each blank
        QCOMPARE(host.ring().UndoNewest(), 3);
        host.key('Z', Qt::ControlModifier);
        QCOMPARE(host.marked(), u"a b|"_s);
        host.key('Z', Qt::ControlModifier);
        QCOMPARE(host.marked(), u"a|"_s);
        host.key('Y', Qt::ControlModifier);
        QCOMPARE(host.marked(), u"a b|"_s);
    }

    void tabWithoutSelectionIsTyped()
    {
        EditorHost host;
        host.setText(u"a|b"_s);
        host.key(Qt::Key_Tab);
        QCOMPARE(host.marked(), u"a\t|b"_s);
        QVERIFY(host.box().hasFocus());
    }

    void deleteTakesASnapshotFirst()
    {
        EditorHost host;
        host.setText(u"a|bc d"_s);
        host.key(Qt::Key_Delete);
        QCOMPARE(host.marked(), u"a|c d"_s);
        QCOMPARE(host.ring().UndoNewest(), 1);
        host.key(Qt::Key_Delete, Qt::ControlModifier);
        QCOMPARE(host.ring().UndoNewest(), 2);
        QVERIFY(host.box().Text().size() < 4);
    }

    void keysTheEditorActsOnAreTakenFromShortcuts()
    {
        EditorHost host;
        host.setText(u"|a|"_s);
        int fired = 0;
        const QList<QKeySequence> sequences{
            QKeySequence(u"Ctrl+C"_s),     QKeySequence(u"Ctrl+X"_s), QKeySequence(u"Ctrl+V"_s),
            QKeySequence(u"Ctrl+Z"_s),     QKeySequence(u"Ctrl+Y"_s), QKeySequence(u"Ctrl+A"_s),
            QKeySequence(u"Ctrl+Space"_s), QKeySequence(u"F6"_s),     QKeySequence(u"Ctrl+F6"_s),
            QKeySequence(u"Tab"_s)};
        for (const QKeySequence &sequence : sequences)
            new QShortcut(sequence, &host.form, [&fired] { ++fired; });
        QSignalSpy analyze(host.list, &ORVListView::QueryAnalyze);
        for (const QKeySequence &sequence : sequences) {
            host.setText(u"|a|"_s);
            QTest::keySequence(host.form.windowHandle(), sequence);
            if (host.wordList().isVisible())
                host.key(Qt::Key_Escape);
        }
        QCOMPARE(fired, 0);
        QCOMPARE(analyze.size(), 1);
    }

    void otherKeysStayFreeForTheHost()
    {
        EditorHost host;
        QStringList fired;
        const QStringList sequences{u"Ctrl+F"_s, u"Ctrl+H"_s,       u"Ctrl+G"_s, u"Ctrl+B"_s,
                                    u"Ctrl+S"_s, u"Ctrl+Shift+Z"_s, u"Ctrl+K"_s, u"Alt+X"_s};
        for (const QString &sequence : sequences)
            new QShortcut(QKeySequence(sequence), &host.form,
                          [&fired, sequence] { fired << sequence; });
        for (const QString &sequence : sequences)
            QTest::keySequence(host.form.windowHandle(), QKeySequence(sequence));
        QCOMPARE(fired, sequences);
    }

    void ctrlTabMovesTheFocus()
    {
        EditorHost host;
        host.key(Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(QApplication::focusWidget()->objectName(), u"ImgRead"_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QVERIFY(host.after->hasFocus());
        host.box().setFocus();
        host.key(Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(host.before->hasFocus());
    }

    void aHostMayDestroyTheComponentInAnEvent()
    {
        {
            EditorHost host;
            QObject::connect(host.list, &ORVListView::QueryAnalyze, host.list,
                             [&] { delete host.list; });
            host.key(Qt::Key_F6);
        }
        {
            EditorHost host;
            QObject::connect(host.list, &ORVListView::KeyDown, host.list,
                             [&] { delete host.list; });
            host.key(Qt::Key_F1);
        }
        {
            EditorHost host;
            setClipboard(u"text"_s);
            QObject::connect(host.list, &ORVListView::UpdateUndoMenu, host.list,
                             [&] { delete host.list; });
            host.key('V', Qt::ControlModifier);
        }
    }
};

ORVT_TEST(EditorKeysTest)
#include "EditorKeysTest.moc"
