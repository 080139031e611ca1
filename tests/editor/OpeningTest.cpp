// Programs that are opened with their colours to come later.

#include "editor/OpeningHost.h"
#include "editor/rules/colouring/ColourText.h"
#include "editor/rules/colouring/ThreadColouring.h"
#include "editor/rules/undo/UndoRecord.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtWidgets/QScrollBar>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class OpeningTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void theTextIsThereAtOnceAndItsColoursInView()
    {
        OpeningHost host;
        host.list->openProgram(longProgram());
        const QString text = host.list->CodeText();
        host.setText(u"x|"_s);
        QSignalSpy changes(&host.box(), &RichTextBox::Change);
        host.open();
        QVERIFY(host.view().isOpening());
        QVERIFY(host.list->CodeText() == text);
        QCOMPARE(host.box().TextLength(), static_cast<qint32>(text.size()));
        QCOMPARE(host.box().lineCount(), programLines);
        QCOMPARE(host.box().Find(u"VAR1 = 3995"_s),
                 static_cast<qint32>(text.indexOf(u"Var1 = 3995")));
        QCOMPARE(changes.size(), 1);
        host.box().setSelStart(0);
        host.box().viewport()->repaint();
        QVERIFY(host.hasColours(0));
        QVERIFY(host.hasColours(2));
        QVERIFY(!host.hasColours(3000));
        QVERIFY(host.view().isOpening());
        host.finish();
        QVERIFY(host.hasColours(3000));
        QCOMPARE(changes.size(), 1);
    }

    // Keys and painting come between the slices.
    void aSliceColoursFewLines()
    {
        constexpr int most = 8;
        OpeningHost host;
        host.open();
        host.pass();
        int left = host.colours().linesLeft();
        QVERIFY(left > programLines / 2);
        for (int i = 0; i < 20; ++i) {
            host.pass();
            const int now = host.colours().linesLeft();
            QVERIFY2(left - now <= 2 * most, qPrintable(QString::number(left - now)));
            QVERIFY(now < left);
            left = now;
        }
    }

    void linesInViewComeFirst()
    {
        OpeningHost host;
        host.open();
        host.box().verticalScrollBar()->setValue(2000);
        host.box().viewport()->repaint();
        QVERIFY(host.hasColours(2000));
        QVERIFY(!host.hasColours(1500));
        host.pass();
        host.pass();
        QVERIFY(!host.hasColours(1500));
        host.finish();
        QVERIFY(host.hasColours(1500));
    }

    void whoAsksForColoursHasThemAll()
    {
        OpeningHost host;
        host.list->openProgram(longProgram());
        const QString rtf = host.list->CodeTextRTF();
        const qint32 place = host.box().lineStart(3000) + 7;
        const ColouredText some = host.box().coloured(place, 3000);
        host.list->Clear();
        host.open();
        QVERIFY(host.box().coloured(place, 3000) == some);
        QVERIFY(!host.hasColours(3900));
        putCaret(host, 2000, 7);
        QCOMPARE(host.box().SelColor(), host.settings.InputColor);
        QVERIFY(host.list->CodeTextRTF() == rtf);
        QVERIFY(!host.colours().areWaiting() || host.colours().linesLeft() == 0);
        host.finish();
    }

    // The words and colours of the call count.
    void whatChangesAfterwardsDoesNotCount()
    {
        OpeningHost host;
        host.open();
        host.inputs.Remove(u"Temp1"_s);
        host.finish();
        QCOMPARE(host.colourAt(host.box().lineStart(3000) + 8), host.settings.InputColor);
    }

    void colouringIsNoChange()
    {
        OpeningHost host;
        host.open();
        host.box().document()->setModified(false);
        QSignalSpy modified(&host.box(), &QPlainTextEdit::modificationChanged);
        QSignalSpy text(&host.box(), &QPlainTextEdit::textChanged);
        QSignalSpy change(&host.box(), &RichTextBox::Change);
        const int top = host.box().verticalScrollBar()->maximum();
        host.finish();
        QCOMPARE(modified.size(), 0);
        QCOMPARE(text.size(), 0);
        QCOMPARE(change.size(), 0);
        QVERIFY(!host.box().document()->isModified());
        QCOMPARE(host.box().verticalScrollBar()->maximum(), top);
        host.open();
        host.finish();
        QVERIFY(host.box().document()->isModified()); // as after opening in one go
    }

    void theViewStaysWhereItIs()
    {
        OpeningHost host;
        const QString wide(400, u'w');
        host.open(longProgram().replace(u"endif"_s, wide + u" temp1"_s));
        host.box().verticalScrollBar()->setValue(1000);
        host.box().viewport()->repaint();
        host.box().horizontalScrollBar()->setValue(900);
        const int left = host.box().horizontalScrollBar()->value();
        QVERIFY(left > 0);
        host.finish();
        QCOMPARE(host.box().horizontalScrollBar()->value(), left);
        QCOMPARE(host.box().verticalScrollBar()->value(), 1000);
    }

    void progressRunsToAHundred()
    {
        OpeningHost host;
        QSignalSpy progress(&host.view(), &CodeView::openingProgress);
        host.open();
        QCOMPARE(progress.size(), 0); // not within the call
        host.finish();
        QTRY_COMPARE(progress.isEmpty() ? -1 : progress.last().first().toInt(), 100);
        int last = -1;
        for (const auto &one : progress) {
            QVERIFY(one.first().toInt() > last);
            last = one.first().toInt();
        }
        QVERIFY(progress.size() > 50);
        progress.clear();
        QTest::qWait(20);
        QCOMPARE(progress.size(), 0);

        host.open(u"if temp1"_s); // has its colours at once
        QVERIFY(!host.view().isOpening());
        QCOMPARE(host.colourOf(u"Temp1"_s), host.settings.InputColor);
        QTRY_COMPARE(progress.size(), 1);
        QCOMPARE(progress.last().first().toInt(), 100);
    }

    void whatUndoBringsBackGetsItsColoursLate_data()
    {
        QTest::addColumn<int>("back");
        QTest::addColumn<int>("forth");
        QTest::newRow("undo") << 1 << 0;
        QTest::newRow("undo twice") << 2 << 0;
        QTest::newRow("undo and redo") << 2 << 1;
    }

    void whatUndoBringsBackGetsItsColoursLate()
    {
        QFETCH(int, back);
        QFETCH(int, forth);
        OpeningHost host;
        host.open();
        host.finish();
        putCaret(host, 3000, 5);
        host.box().setSelRTF(u"{\\rtf1{\\b bold} \\i i\\par x}"_s);
        host.type(u"x y z "_s);
        QString errMsg;
        for (int i = 0; i < back; ++i)
            host.list->Undo(errMsg);
        for (int i = 0; i < forth; ++i)
            host.list->Redo(errMsg);
        QVERIFY(host.colours().areWaiting());
        QVERIFY(!host.view().isOpening());
        host.view().cancelOpening(); // not this
        const QString slot = host.ring().FetchUndoSnapshot(host.ring().UndoCurrent());
        const ColouredText expected =
            colouredText(threadColouring(), splitUndoRecord(slot).text, false, host.settings);
        QVERIFY(host.list->CodeText() == expected.text);
        host.box().ensureCursorVisible();
        host.box().viewport()->repaint();
        const int line = host.box().textCursor().blockNumber();
        QVERIFY2(host.hasColours(line), qPrintable(host.box().lineText(line)));
        host.finish();
        RichTextBox box;
        box.setFont(host.box().font());
        box.setColoured(expected);
        comparePictures(pictureOf(host.box()), pictureOf(box));
        QVERIFY(host.box().TextRTF() == box.TextRTF());
    }

    void anEditorThatWasNeverShown()
    {
        ORVListView list;
        PointList inputs;
        inputs.Add(u"Temp1"_s);
        ORVTreeview tree;
        tree.SetCollectionRenamable(nullptr, nullptr, nullptr, &inputs, nullptr, nullptr);
        list.setListviewType(dsCode);
        list.Init_RichTextBox(defaultColours());
        list.codeView()->openProgram(longProgram());
        QVERIFY(list.codeView()->isOpening());
        QTRY_VERIFY(!list.codeView()->isOpening());
        const QString rtf = list.CodeTextRTF();
        list.openProgram(longProgram());
        QVERIFY(list.CodeTextRTF() == rtf);
    }

    void withoutKnownWordsThereIsNothingToColour()
    {
        ORVListView list;
        list.setListviewType(dsCode);
        list.codeView()->openProgram(longProgram());
        QTRY_VERIFY(!list.codeView()->isOpening());
        QCOMPARE(list.CodeText(), longProgram());
        QVERIFY(messages().isEmpty());
    }
};

ORVT_TEST(OpeningTest)
#include "OpeningTest.moc"
