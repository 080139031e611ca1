// Folding of blocks: what is hidden, what stays, and what opens a fold.

#include "editor/view/ViewFixture.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtGui/QAccessible>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class FoldsTest : public WidgetTest
{
    Q_OBJECT

private:
    std::unique_ptr<ViewHost> m_host;

    RichTextBox &box() { return m_host->box(); }
    CodeView &view() { return m_host->view(); }

    // The lines that are shown, from 1.
    QString shown()
    {
        QStringList numbers;
        for (QTextBlock line = box().document()->firstBlock(); line.isValid(); line = line.next()) {
            if (line.isVisible())
                numbers << QString::number(line.blockNumber() + 1);
        }
        return numbers.join(u' ');
    }
    QString caret()
    {
        const QTextCursor cursor = box().textCursor();
        return u"%1:%2"_s.arg(cursor.blockNumber() + 1).arg(cursor.positionInBlock());
    }
    void caretTo(qint32 line, qint32 from = 0)
    {
        box().setSelStart(box().lineStart(line - 1) + from);
    }
    // On the sign of a line, from 1: the innermost column of the margin.
    void click(int line)
    {
        QTest::mouseClick(&m_host->margin(), Qt::LeftButton, {},
                          {m_host->margin().width() - 5, m_host->inMargin(line - 1).y()});
    }

    // "wanted = 2" in its last but one line, from 0 the 301st.
    void foldALongBlock()
    {
        QStringList lines{u"IF a"_s};
        for (int i = 0; i < 300; ++i)
            lines << u"x = 1"_s;
        lines << u"wanted = 2"_s << u"ENDIF"_s;
        m_host->list->openProgram(lines.join(u"\r\n"_s));
        view().foldAll();
    }

private Q_SLOTS:
    void init() override
    {
        WidgetTest::init();
        QApplication::setCursorFlashTime(0);
        m_host = std::make_unique<ViewHost>();
        m_host->list->openProgram(u"a = 1\r\n"        // 1
                                  "IF a\r\n"          // 2
                                  "    IF b\r\n"      // 3
                                  "        c = 1\r\n" // 4
                                  "    ENDIF\r\n"     // 5
                                  "ELSE\r\n"          // 6
                                  "    d = 1\r\n"     // 7
                                  "ENDIF\r\n"         // 8
                                  "IF x ENDIF\r\n"    // 9
                                  "e = 1"_s);         // 10
        view().setFoldingEnabled(true);
    }
    void cleanup() override
    {
        m_host.reset();
        WidgetTest::cleanup();
    }

    void theFrontOfAFoldIsReachedFromBehindIt()
    {
        view().foldAll();
        caretTo(8);
        view().goToLine(3);
        QCOMPARE(caret(), u"3:0"_s);
        view().foldAll();
        QCOMPARE(caret(), u"2:4"_s);
        caretTo(8);
        m_host->key(Qt::Key_Left);
        QCOMPARE(caret(), u"7:9"_s);
    }

    void aClickFoldsAndUnfolds()
    {
        click(3);
        QCOMPARE(shown(), u"1 2 3 5 6 7 8 9 10"_s);
        click(3);
        QCOMPARE(shown(), u"1 2 3 4 5 6 7 8 9 10"_s);
        click(2);
        QCOMPARE(shown(), u"1 2 8 9 10"_s);
        QCOMPARE(box().SelLength(), 0);
        QVERIFY(m_host->placeOf(7).top() <= m_host->placeOf(1).bottom() + 2);
    }

    void aClickFoldsWhereLinesBeginOnTheRight()
    {
        view().setLineNumbersVisible(true);
        m_host->form.setLayoutDirection(Qt::RightToLeft);
        QCoreApplication::processEvents();
        const int y = m_host->inMargin(2).y();
        QTest::mouseClick(&m_host->margin(), Qt::LeftButton, {}, {5, y});
        QCOMPARE(shown(), u"1 2 3 5 6 7 8 9 10"_s);
        const int numbers = m_host->margin().width() - 20;
        QTest::mouseClick(&m_host->margin(), Qt::LeftButton, {}, {numbers, y});
        QCOMPARE(shown(), u"1 2 3 5 6 7 8 9 10"_s);
        QVERIFY(box().SelLength() > 0);
    }

    void aClickElsewhereSelectsTheLine()
    {
        for (const int line : {1, 9}) { // nothing to hide
            click(line);
            QVERIFY(box().SelLength() > 0);
        }
        QCOMPARE(shown(), u"1 2 3 4 5 6 7 8 9 10"_s);
    }

    void aFoldedLineIsSelectedWithWhatItHides()
    {
        view().setLineNumbersVisible(true);
        click(3);
        QTest::mouseClick(&m_host->margin(), Qt::LeftButton, {}, {20, m_host->inMargin(2).y()});
        QCOMPARE(box().SelText(), u"    IF b\r\n        c = 1\r\n"_s);
        QCOMPARE(shown(), u"1 2 3 5 6 7 8 9 10"_s);
    }

    void allAreFoldedAndUnfolded()
    {
        view().foldAll();
        QCOMPARE(shown(), u"1 2 8 9 10"_s);
        view().unfoldAll();
        QCOMPARE(shown(), u"1 2 3 4 5 6 7 8 9 10"_s);
    }

    void aBlockWithoutEndIsNotFolded()
    {
        m_host->list->openProgram(u"IF a\r\nb\r\nENDIF\r\nIF c\r\nd\r\ne"_s);
        view().foldAll();
        QCOMPARE(shown(), u"1 3 4 5 6"_s);
        click(4);
        QCOMPARE(shown(), u"1 3 4 5 6"_s);
    }

    void nothingOfItIsInTheText()
    {
        const QString rtf = m_host->list->CodeTextRTF();
        const QString text = m_host->list->CodeText();
        caretTo(1);
        QSignalSpy changed(&box(), &RichTextBox::Change);
        QSignalSpy edited(&box(), &RichTextBox::edited);
        view().foldAll();
        QCOMPARE(m_host->list->CodeText(), text);
        view().unfoldAll();
        view().foldAll();
        QCOMPARE(m_host->list->CodeTextRTF(), rtf);
        QCoreApplication::processEvents();
        QCOMPARE(changed.count() + edited.count(), 0);
        QVERIFY(!m_host->list->IsUndoAvailable());
    }

    void aBlockWithoutEndHasNoSign()
    {
        const auto sign = [this](int line) {
            const QRect place = m_host->placeOf(line - 1);
            const QImage margin = m_host->picture(m_host->margin());
            const QRect cell(margin.width() - box().fontMetrics().height() * 3 / 4, place.top(),
                             box().fontMetrics().height() * 3 / 4 - 1, place.height());
            for (int y = cell.top(); y <= cell.bottom(); ++y) {
                for (int x = cell.left(); x <= cell.right(); ++x) {
                    if (margin.pixelColor(x, y) != m_host->ground())
                        return true;
                }
            }
            return false;
        };
        QVERIFY(sign(2));
        m_host->list->setCodeText(u"IF a\r\nx = 1\r\nIF b\r\n y = 1\r\nENDIF\r\nz = 1"_s);
        QTRY_VERIFY(!sign(1));
        QVERIFY(sign(3));
        caretTo(1);
        m_host->type(u"\n"_s); // before it knows better
        QVERIFY(!sign(2));
        QVERIFY(sign(4));
        caretTo(7, 5);
        m_host->type(u"\nENDIF"_s);
        QTRY_VERIFY(sign(2));
        view().setFoldingEnabled(false);
        view().setFoldingEnabled(true);
        QVERIFY(sign(2));
    }

    void foldsMoveWithTheirLines()
    {
        view().foldAll();
        QCOMPARE(shown(), u"1 2 8 9 10"_s);
        caretTo(2, 2);
        view().moveLines(-1);
        QCOMPARE(box().lineText(0), u"IF a"_s);
        QCOMPARE(box().lineText(6), u"a = 1"_s);
        QCOMPARE(shown(), u"1 7 8 9 10"_s);
        QCOMPARE(caret(), u"1:2"_s);
        view().moveLines(1);
        QCOMPARE(shown(), u"1 2 8 9 10"_s);
        caretTo(1, 1); // a line past a fold, there and back
        view().moveLines(1);
        QCOMPARE(box().lineText(6), u"a = 1"_s);
        QCOMPARE(shown(), u"1 7 8 9 10"_s);
        QCOMPARE(caret(), u"7:1"_s);
        view().moveLines(-1);
        QCOMPARE(box().lineText(0), u"a = 1"_s);
        QCOMPARE(shown(), u"1 2 8 9 10"_s);
        view().moveLines(99);
        QCOMPARE(box().lineText(9), u"a = 1"_s);
        QCOMPARE(shown(), u"1 7 8 9 10"_s);
        view().moveLines(-99);
        QCOMPARE(shown(), u"1 2 8 9 10"_s);
        view().unfoldAll();
        QCOMPARE(shown(), u"1 2 3 4 5 6 7 8 9 10"_s);
    }

    void theSignStandsWhereTheLineEnds()
    {
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            m_host->form.setLayoutDirection(direction);
            view().unfoldAll();
            const QRect line = m_host->placeOf(1);
            const QRect behind(line.left() + 4 * box().fontMetrics().averageCharWidth(), line.top(),
                               6 * box().fontMetrics().averageCharWidth(), line.height());
            const QImage before = m_host->picture(*box().viewport()).copy(behind);
            view().foldAll();
            QVERIFY(m_host->picture(*box().viewport()).copy(behind) != before);
        }
    }

    void upAndDownStepOver()
    {
        view().foldAll();
        caretTo(1, 3);
        m_host->key(Qt::Key_Down);
        QCOMPARE(caret(), u"2:3"_s);
        m_host->key(Qt::Key_Down);
        QCOMPARE(caret(), u"8:3"_s);
        m_host->key(Qt::Key_Up);
        QCOMPARE(caret(), u"2:3"_s);
        caretTo(2);
        m_host->key(Qt::Key_Down); // the toolkit's own way
        QCOMPARE(caret(), u"8:0"_s);
        m_host->key(Qt::Key_Up);
        QCOMPARE(caret(), u"2:0"_s);
        m_host->key(Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(caret(), u"8:0"_s);
        QCOMPARE(shown(), u"1 2 8 9 10"_s);
    }

    void leftAndRightStepInside()
    {
        view().foldAll();
        caretTo(2, 4);
        m_host->key(Qt::Key_Right);
        QCOMPARE(caret(), u"3:0"_s);
        QCOMPARE(shown(), u"1 2 3 4 5 6 7 8 9 10"_s);
        view().foldAll();
        caretTo(2, 4);
        m_host->key(Qt::Key_Right, Qt::ShiftModifier);
        QCOMPARE(caret(), u"8:0"_s); // a selection goes over it
        QCOMPARE(shown(), u"1 2 8 9 10"_s);
        view().foldAll();
        caretTo(8);
        QCOMPARE(shown(), u"1 2 8 9 10"_s);
        m_host->key(Qt::Key_Left);
        QCOMPARE(caret(), u"7:9"_s);
        QCOMPARE(shown(), u"1 2 3 4 5 6 7 8 9 10"_s);
    }

    void pagesStepOver()
    {
        QStringList lines;
        for (int i = 0; i < 60; ++i)
            lines << u"IF a"_s << QStringList(20, u"x = 1"_s) << u"ENDIF"_s;
        m_host->list->openProgram(lines.join(u"\r\n"_s));
        view().foldAll();
        QCoreApplication::processEvents();
        for (const Qt::Key key : {Qt::Key_PageDown, Qt::Key_PageDown, Qt::Key_PageUp}) {
            m_host->key(key);
            QVERIFY(box().textCursor().block().isVisible());
        }
        QCOMPARE(box().document()->lineCount(), 120);
        QVERIFY(box().textCursor().blockNumber() > 60);
        m_host->key(Qt::Key_PageUp);
        m_host->key(Qt::Key_PageUp);
        QCOMPARE(box().textCursor().blockNumber(), 0);
        QCOMPARE(box().verticalScrollBar()->value(), 0);
    }

    void aCaretPutInsideOpens()
    {
        view().foldAll();
        caretTo(7, 1);
        QCOMPARE(shown(), u"1 2 3 4 5 6 7 8 9 10"_s);
        QCOMPARE(caret(), u"7:1"_s);
    }

    void aScreenReaderMayAskToSeeWhatIsInside()
    {
        foldALongBlock();
        caretTo(1);
        const QTextBlock wanted = box().document()->findBlockByNumber(301);
        QVERIFY(!wanted.isVisible());
        QAccessible::queryAccessibleInterface(&box())->textInterface()->scrollToSubstring(
            wanted.position(), wanted.position() + 6);
        QVERIFY(wanted.isVisible());
        QVERIFY(box().viewport()->rect().contains(m_host->placeOf(301)));
        QCOMPARE(caret(), u"1:0"_s);
    }

    void aMatchInsideOpensAndIsShown()
    {
        foldALongBlock();
        QVERIFY(box().Find(u"wanted"_s) > 0);
        QCOMPARE(box().SelText(), u"wanted"_s);
        QVERIFY(box().textCursor().block().isVisible());
        QVERIFY(box().viewport()->rect().contains(box().cursorRect()));
    }

    void theCaretLeavesWhatIsHidden()
    {
        caretTo(4, 2);
        click(2);
        QCOMPARE(caret(), u"2:4"_s);
        QCOMPARE(shown(), u"1 2 8 9 10"_s);
    }

    void typingInTheIfsLineKeepsTheFold()
    {
        view().foldAll();
        caretTo(2, 4);
        m_host->type(u" > 3"_s);
        QCOMPARE(box().lineText(1), u"IF a > 3"_s);
        QCOMPARE(shown(), u"1 2 8 9 10"_s);
    }

    void aLineThatIsNoIfAnyMoreOpens()
    {
        view().foldAll();
        caretTo(2, 1);
        m_host->type(u"x"_s);
        QCOMPARE(shown(), u"1 2 3 4 5 6 7 8 9 10"_s);
    }

    void enterAtAFoldOpens()
    {
        view().foldAll();
        caretTo(2, 4);
        m_host->type(u"\n"_s);
        QCOMPARE(shown(), u"1 2 3 4 5 6 7 8 9 10 11"_s);
    }

    void enterBeforeAFoldKeepsIt()
    {
        view().foldAll();
        caretTo(1, 5);
        m_host->type(u"\n"_s);
        QCOMPARE(shown(), u"1 2 3 9 10 11"_s);
    }

    void joiningALineAtTheEdgeOpens_data()
    {
        QTest::addColumn<int>("line");
        QTest::addColumn<int>("offset");
        QTest::addColumn<int>("key");
        QTest::newRow("Delete behind the IF") << 2 << 4 << int(Qt::Key_Delete);
        QTest::newRow("Backspace before the ENDIF") << 8 << 0 << int(Qt::Key_Backspace);
    }
    void joiningALineAtTheEdgeOpens()
    {
        QFETCH(const int, line);
        QFETCH(const int, offset);
        QFETCH(const int, key);
        view().foldAll();
        caretTo(line, offset);
        m_host->key(key);
        QCOMPARE(box().lineCount(), 9);
        QCOMPARE(shown(), u"1 2 3 4 5 6 7 8 9"_s);
    }

    void undoAndReplaceInsideOpen()
    {
        caretTo(7, 9);
        m_host->type(u" + 1 "_s);
        click(2);
        QCOMPARE(shown(), u"1 2 8 9 10"_s);
        m_host->key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(shown(), u"1 2 3 4 5 6 7 8 9 10"_s);
        click(2);
        QString errMsg;
        m_host->list->ReplaceRichTextBox(u"c"_s, u"cc"_s, errMsg);
        QCOMPARE(shown(), u"1 2 3 4 5 6 7 8 9 10"_s);
    }

    void anotherProgramHasNoFolds()
    {
        view().foldAll();
        m_host->list->setCodeText(u"IF a\r\nb\r\nc\r\nENDIF"_s);
        QCOMPARE(shown(), u"1 2 3 4"_s);
    }

    void colouringKeepsTheFold()
    {
        view().foldAll();
        m_host->list->Init_RichTextBox(m_host->settings); // sets the text anew
        caretTo(1, 0);
        view().foldAll();
        m_host->type(u"if"_s);
        m_host->key(Qt::Key_Down); // the line is left, and coloured
        QCOMPARE(shown(), u"1 2 8 9 10"_s);
    }

    void switchingOffOpensAll()
    {
        QSignalSpy changed(&view(), &CodeView::foldingEnabledChanged);
        view().foldAll();
        view().setFoldingEnabled(false);
        QCOMPARE(shown(), u"1 2 3 4 5 6 7 8 9 10"_s);
        view().foldAll();
        QCOMPARE(shown(), u"1 2 3 4 5 6 7 8 9 10"_s);
        QVERIFY(!m_host->margin().isVisible());
        QCOMPARE(changed.count(), 1);
    }
};

ORVT_TEST(FoldsTest)
#include "FoldsTest.moc"
