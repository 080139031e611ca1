// What keys do to lines: indents, line ends, and the way to the line above or below.

#include "editor/EditorHost.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtGui/QFontMetricsF>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class EditorLinesTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void tabWithSelectionIndentsTheLines()
    {
        EditorHost host;
        host.setText(u"on|e\r\n\r\n  tw|o\r\nthree"_s);
        host.key(Qt::Key_Tab);
        QCOMPARE(host.marked(), u"    on|e\r\n\r\n      tw|o\r\nthree"_s);
        QCOMPARE(host.ring().UndoNewest(), 1);
        QCOMPARE(host.ring().FetchUndoSnapshot(1).section(u"\r\n%%%%%%\r\n"_s, 0, 0),
                 u"one\r\n\r\n  two\r\nthree"_s);
    }

    void aLineWhoseStartEndsTheSelectionIsNotIndented()
    {
        EditorHost host;
        host.setText(u"|one\r\n|two"_s);
        host.key(Qt::Key_Tab);
        QCOMPARE(host.marked(), u"|    one\r\n|two"_s);
    }

    void shiftTabWithSelectionTakesAtMostOneUnit()
    {
        EditorHost host;
        host.setText(u"|        one\r\n  two\r\n\t\tthree\r\nfour|"_s);
        host.key(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(host.marked(), u"|    one\r\ntwo\r\n\tthree\r\nfour|"_s);
        QCOMPARE(host.ring().UndoNewest(), 1);
    }

    void theIndentUnitIsAProperty()
    {
        EditorHost host;
        QCOMPARE(host.list->indentUnit(), u"    "_s);
        host.list->setIndentUnit(u"\t"_s);
        host.setText(u"|one|"_s);
        host.key(Qt::Key_Tab);
        QCOMPARE(host.marked(), u"|\tone|"_s);
        host.list->setIndentUnit(u"x"_s);
        host.list->setIndentUnit(QString());
        QCOMPARE(host.list->indentUnit(), u"\t"_s);
    }

    void indentingKeepsTheColours()
    {
        EditorHost host;
        host.list->setCodeTextRTF(host.list->GetColorText(u"if temp1\r\nREM x"_s));
        host.list->RTextSelectAll();
        host.key(Qt::Key_Tab);
        QCOMPARE(host.box().Text(), u"    IF Temp1\r\n    REM x"_s);
        QCOMPARE(host.colourOf(u"Temp1"_s), 0x0000FF);
        QCOMPARE(host.colourOf(u"REM"_s), 0x008000);
    }

    void shiftTabWithoutSelectionTakesOneBlankBeforeTheCaret_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        QTest::newRow("blank") << u"a  |b"_s << u"a |b"_s;
        QTest::newRow("tab") << u"a\t|b"_s << u"a|b"_s;
        QTest::newRow("letter") << u"ab|c"_s << u"ab|c"_s;
        QTest::newRow("line start") << u"a\r\n|b"_s << u"a\r\n|b"_s;
        QTest::newRow("text start") << u"| b"_s << u"| b"_s;
    }
    void shiftTabWithoutSelectionTakesOneBlankBeforeTheCaret()
    {
        QFETCH(const QString, before);
        QFETCH(const QString, after);
        EditorHost host;
        host.setText(before);
        host.key(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(host.marked(), after);
        QCOMPARE(host.ring().UndoNewest(), 0);
    }

    void upAndDownKeepTheOffset_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        QTest::newRow("down") << int(Qt::Key_Down) << u"ab|cd\r\nWWWW"_s << u"abcd\r\nWW|WW"_s;
        QTest::newRow("down to the end") << int(Qt::Key_Down) << u"ab|\r\nxy"_s << u"ab\r\nxy|"_s;
        QTest::newRow("up") << int(Qt::Key_Up) << u"WWWW\r\n\t\ti|i"_s << u"WWW|W\r\n\t\tii"_s;
        QTest::newRow("past tabs")
            << int(Qt::Key_Down) << u"\t\ta|b\r\nxxxxxxxx"_s << u"\t\tab\r\nxxx|xxxxx"_s;
    }
    void upAndDownKeepTheOffset()
    {
        QFETCH(const int, key);
        QFETCH(const QString, before);
        QFETCH(const QString, after);
        EditorHost host;
        host.setText(before);
        host.key(key);
        QCOMPARE(host.marked(), after);
    }

    void upAndDownWithoutRoomAreTheBoxsOwn()
    {
        EditorHost host;
        host.setText(u"abcdef|\r\nx"_s);
        host.key(Qt::Key_Down);
        QCOMPARE(host.marked(), u"abcdef\r\nx|"_s);
        host.setText(u"|ab\r\ncd"_s); // offset 0
        host.key(Qt::Key_Down);
        QCOMPARE(host.marked(), u"ab\r\n|cd"_s);
    }

    void upAndDownAfterASelectionStartAtTheCaret_data()
    {
        QTest::addColumn<int>("selecting");
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("after");
        QTest::newRow("down, down")
            << int(Qt::Key_Down) << int(Qt::Key_Down) << u"aaaa\r\nbbbb\r\ncccc\r\ndd|dd"_s;
        QTest::newRow("down, up") << int(Qt::Key_Down) << int(Qt::Key_Up)
                                  << u"aaaa\r\nbb|bb\r\ncccc\r\ndddd"_s;
        QTest::newRow("up, up") << int(Qt::Key_Up) << int(Qt::Key_Up)
                                << u"|aaaa\r\nbbbb\r\ncccc\r\ndddd"_s;
        QTest::newRow("up, down") << int(Qt::Key_Up) << int(Qt::Key_Down)
                                  << u"aaaa\r\nbb|bb\r\ncccc\r\ndddd"_s;
    }
    void upAndDownAfterASelectionStartAtTheCaret()
    {
        QFETCH(const int, selecting);
        QFETCH(const int, key);
        QFETCH(const QString, after);
        EditorHost host;
        host.setText(u"aaaa\r\nbb|bb\r\ncccc\r\ndddd"_s);
        host.key(selecting, Qt::ShiftModifier);
        host.key(key);
        if (selecting == Qt::Key_Up && key == Qt::Key_Up) // no line above: the box's own
            QCOMPARE(host.box().GetLineFromChar(host.box().SelStart()), 0);
        else
            QCOMPARE(host.marked(), after);
    }

    void indentingKeepsTheDirectionOfTheSelection()
    {
        EditorHost host;
        host.setText(u"aa\r\nbbb|\r\ncc"_s);
        host.key(Qt::Key_Up, Qt::ShiftModifier);
        for (int i = 0; i < 2; ++i) {
            host.key(Qt::Key_Tab);
            QCOMPARE(host.marked(), u"    aa|\r\n    bbb|\r\ncc"_s);
            QVERIFY(host.box().textCursor().position() < host.box().textCursor().anchor());
            host.key(Qt::Key_Tab, Qt::ShiftModifier);
            QCOMPARE(host.marked(), u"aa|\r\nbbb|\r\ncc"_s);
            QVERIFY(host.box().textCursor().position() < host.box().textCursor().anchor());
        }
        host.key(Qt::Key_Left, Qt::ShiftModifier); // goes on at that end
        QCOMPARE(host.marked(), u"a|a\r\nbbb|\r\ncc"_s);
    }

    void aTabIsAsWideAsTheIndent()
    {
        EditorHost host;
        const auto isFitting = [&host](const QString &blanks) {
            const QFontMetricsF font(host.box().font());
            const qreal wanted = font.horizontalAdvance(blanks);
            host.setText(u"\tx\r\n"_s + blanks + u'x');
            const auto left = [&host](qint32 position) {
                host.box().setSelStart(position);
                return host.box().cursorRect().left();
            };
            const int indented = left(host.box().lineStart(1) + static_cast<qint32>(blanks.size()));
            return qFuzzyCompare(host.box().tabStopDistance(), wanted) && left(1) == indented;
        };
        QVERIFY(isFitting(u"    "_s));
        host.settings.FontSize = 20;
        host.list->Init_RichTextBox(host.settings);
        QVERIFY(isFitting(u"    "_s));
        host.settings.FontStyle = u"b1"_s;
        host.settings.FontName = u"DejaVu Sans"_s;
        host.list->Init_RichTextBox(host.settings);
        QVERIFY(isFitting(u"    "_s));
        host.list->setIndentUnit(u"  "_s);
        QVERIFY(isFitting(u"  "_s));
        host.box().setFontSize(8); // past the settings
        QVERIFY(isFitting(u"  "_s));
        host.list->setIndentUnit(u"\t"_s);
        QVERIFY(isFitting(u"    "_s));
    }

    void enterKeepsTheIndent_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        QTest::newRow("end of line") << u"  ab|"_s << u"  ab\r\n  |"_s;
        QTest::newRow("middle") << u"\t a|b"_s << u"\t a\r\n\t |b"_s;
        QTest::newRow("inside the indent")
            << u"  |  ab"_s
            << (EditorHost::hasAllOfTheView() ? u"\r\n  |  ab"_s : u"  \r\n  |  ab"_s);
        QTest::newRow("line start") << u"|  ab"_s << u"\r\n|  ab"_s;
        QTest::newRow("no indent") << u"ab|\r\n  c"_s << u"ab\r\n|\r\n  c"_s;
        QTest::newRow("selection") << u"  a|b\r\nc|d"_s << u"  a\r\n  |d"_s;
    }
    void enterKeepsTheIndent()
    {
        QFETCH(const QString, before);
        QFETCH(const QString, after);
        for (const Qt::KeyboardModifier modifier : {Qt::NoModifier, Qt::ShiftModifier}) {
            renewState();
            EditorHost host;
            host.setText(before);
            host.key(Qt::Key_Return, modifier);
            QCOMPARE(host.marked(), after);
            QCOMPARE(host.ring().UndoNewest(), 1);
            QVERIFY(!host.box().Text().contains(QChar(0x2028)));
        }
    }

    void backspaceInTheIndentGoesBackOneStep_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        QTest::newRow("two steps") << u"        |x"_s << u"    |x"_s;
        QTest::newRow("between steps") << u"      |x"_s << u"    |x"_s;
        QTest::newRow("one blank") << u" |x"_s << u"|x"_s;
        QTest::newRow("tab") << u"\t\t|x"_s << u"\t|x"_s;
        QTest::newRow("blank after tab") << u"\t |x"_s << u"\t|x"_s;
        QTest::newRow("behind a word") << u"ab    |x"_s << u"ab   |x"_s;
        QTest::newRow("line start") << u"a\r\n|x"_s << u"a|x"_s;
        QTest::newRow("letter") << u"ab|"_s << u"a|"_s;
        QTest::newRow("selection in the indent") << u"  |  |x"_s << u"  |x"_s;
    }
    void backspaceInTheIndentGoesBackOneStep()
    {
        QFETCH(const QString, before);
        QFETCH(const QString, after);
        EditorHost host;
        host.setText(before);
        host.key(Qt::Key_Backspace);
        QCOMPARE(host.marked(), after);
        QCOMPARE(host.ring().UndoNewest(), 1);
    }
};

ORVT_TEST(EditorLinesTest)
#include "EditorLinesTest.moc"
