// The commands that a host binds to its menu.

#include "editor/view/ViewFixture.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class LineCommandsTest : public WidgetTest
{
    Q_OBJECT

private:
    using Command = std::function<void(CodeView &)>;

    std::unique_ptr<ViewHost> m_host;

    RichTextBox &box() { return m_host->box(); }
    CodeView &view() { return m_host->view(); }

    // What becomes of the text; "\n" for a line end, "|" for the ends of the selection.
    QString after(const Command &command, QString before)
    {
        m_host->setText(before.replace(u"\n"_s, u"\r\n"_s));
        command(view());
        return m_host->marked().replace(u"\r\n"_s, u"\n"_s);
    }

    static QList<std::pair<const char *, Command>> changes()
    {
        return {{"down", [](CodeView &view) { view.moveLines(1); }},
                {"up", [](CodeView &view) { view.moveLines(-1); }},
                {"duplicate", [](CodeView &view) { view.duplicateLines(); }},
                {"delete", [](CodeView &view) { view.deleteLines(); }},
                {"join", [](CodeView &view) { view.joinLines(); }},
                {"sort", [](CodeView &view) { view.sortLines(); }},
                {"comment", [](CodeView &view) { view.toggleComment(); }},
                {"upper", [](CodeView &view) { view.upperCase(); }},
                {"lower", [](CodeView &view) { view.lowerCase(); }},
                {"tidy", [](CodeView &view) { view.tidy(); }}};
    }
    static void everyChange_data()
    {
        QTest::addColumn<Command>("command");
        for (const auto &[name, command] : changes())
            QTest::newRow(name) << command;
    }
    // A text that each of them changes.
    static QString changeable() { return u"IF Temp1\nd |cC\nB ( x| )\na"_s; }

private Q_SLOTS:
    void init() override
    {
        WidgetTest::init();
        m_host = std::make_unique<ViewHost>();
    }
    void cleanup() override
    {
        m_host.reset();
        WidgetTest::cleanup();
    }

    void linesMove()
    {
        const auto by = [](int lines) {
            return [lines](CodeView &view) { view.moveLines(lines); };
        };
        QCOMPARE(after(by(1), u"a|\nb\nc"_s), u"b\na|\nc"_s);
        QCOMPARE(after(by(1), u"a\n|b\nc"_s), u"a\nc\n|b"_s);
        QCOMPARE(after(by(-1), u"a\nb\n|c"_s), u"a\n|c\nb"_s);
        QCOMPARE(after(by(1), u"x|a\nb|b\nc"_s), u"c\nx|a\nb|b"_s);
        QCOMPARE(after(by(1), u"|a\n|b\nc"_s), u"b\n|a\n|c"_s); // a line only ended at stays
        QCOMPARE(after(by(1), u"|a\n|b"_s), u"b\n|a|"_s);       // and there is none behind the last
        QCOMPARE(after(by(9), u"a|\nb\nc"_s), u"b\nc\na|"_s);
        QCOMPARE(after(by(-9), u"a\nb\n|\n"_s), u"|\na\nb\n"_s);
        QCOMPARE(after(by(1), u"a\n|"_s), u"a\n|"_s);
        QCOMPARE(after(by(0), u"a|\nb"_s), u"a|\nb"_s);
        QCOMPARE(after(by(std::numeric_limits<int>::min()), u"a\nb|"_s), u"b|\na"_s);
    }

    void aMovedLineKeepsColoursDirectionAndMark()
    {
        m_host->list->openProgram(u"Temp1 = 1\r\nREM a\r\nFan1 = 2"_s);
        box().setSelStart(9);
        QTest::keyClick(&box(), Qt::Key_Left, Qt::ShiftModifier);
        view().toggleBookmark();
        view().moveLines(2);
        QCOMPARE(m_host->marked(), u"REM a\r\nFan1 = 2\r\nTemp1 = |1|"_s);
        QVERIFY(box().textCursor().position() < box().textCursor().anchor());
        QCOMPARE(m_host->colourOf(u"REM"_s), shownColour(m_host->settings.CommentColor));
        QCOMPARE(m_host->colourOf(u"Temp1"_s), shownColour(m_host->settings.InputColor));
        box().setSelStart(0);
        QVERIFY(view().nextBookmark());
        QCOMPARE(box().textCursor().blockNumber(), 2);
    }

    void linesAreDuplicated()
    {
        const Command command = [](CodeView &view) { view.duplicateLines(); };
        QCOMPARE(after(command, u"a\nb|\nc"_s), u"a\nb|\nb\nc"_s);
        QCOMPARE(after(command, u"a|a\nb|b"_s), u"a|a\nb|b\naa\nbb"_s);
        QCOMPARE(after(command, u"|"_s), u"|\n"_s);
    }

    void linesAreDeleted()
    {
        const Command command = [](CodeView &view) { view.deleteLines(); };
        QCOMPARE(after(command, u"abc\nde|f\nghi"_s), u"abc\ngh|i"_s);
        QCOMPARE(after(command, u"abc\nde|f\ng"_s), u"abc\ng|"_s);
        QCOMPARE(after(command, u"abc\nde|f"_s), u"ab|c"_s);
        QCOMPARE(after(command, u"a|b\nc|d"_s), u"|"_s);
        QCOMPARE(after(command, u"|"_s), u"|"_s);
    }

    void linesAreJoined()
    {
        const Command command = [](CodeView &view) { view.joinLines(); };
        QCOMPARE(after(command, u"a| \n  b\nc"_s), u"a| b\nc"_s);
        QCOMPARE(after(command, u"|a\n\nb\n|c"_s), u"|a b\n|c"_s);
        QCOMPARE(after(command, u"a|"_s), u"a|"_s);
    }

    void linesAreSorted()
    {
        const Command command = [](CodeView &view) { view.sortLines(); };
        QCOMPARE(after(command, u"|T10\nt2\nT1|"_s), u"|T1\nt2\nT10|"_s);
        QCOMPARE(after(command, u"z\n|b\na\n|a"_s), u"z\n|a\nb\n|a"_s);
        QCOMPARE(after(command, u"b|\na"_s), u"b|\na"_s); // a single line is no list
        QCOMPARE(after(command, u"|a\nb|"_s), u"|a\nb|"_s);
    }

    void commentsComeAndGo()
    {
        const Command command = [](CodeView &view) { view.toggleComment(); };
        QCOMPARE(after(command, u"  |x = 1"_s), u"  REM |x = 1"_s);
        QCOMPARE(after(command, u"  REM |x = 1"_s), u"  |x = 1"_s);
        QCOMPARE(after(command, u"|a\n\n  b\n|c"_s), u"|REM a\n\n  REM b\n|c"_s);
        QCOMPARE(after(command, u"|\n|"_s), u"|\n|"_s);
        m_host->list->openProgram(u"Temp1 = 1"_s);
        view().toggleComment();
        QCOMPARE(m_host->colourOf(u"Temp1"_s), shownColour(m_host->settings.CommentColor));
        view().toggleComment();
        QCOMPARE(m_host->colourOf(u"Temp1"_s), shownColour(m_host->settings.InputColor));
    }

    void theSelectionIsWrittenInCapitals()
    {
        QCOMPARE(after([](CodeView &view) { view.upperCase(); }, u"a|b\nc|d"_s), u"a|B\nC|d"_s);
        QCOMPARE(after([](CodeView &view) { view.upperCase(); }, u"|ß|x"_s), u"|SS|x"_s);
        QCOMPARE(after([](CodeView &view) { view.lowerCase(); }, u"A|BC|D"_s), u"A|bc|D"_s);
        QCOMPARE(after([](CodeView &view) { view.upperCase(); }, u"ab|"_s), u"ab|"_s);
        m_host->list->openProgram(u"x Temp1 y"_s);
        box().setSelLength(9);
        view().upperCase();
        QCOMPARE(m_host->marked(), u"|X TEMP1 Y|"_s);
        QCOMPARE(m_host->colourOf(u"TEMP1"_s), shownColour(m_host->settings.InputColor));
        QCOMPARE(m_host->colourOf(u"Y"_s), m_host->colourOf(u"X"_s));
    }

    void tidies()
    {
        const Command command = [](CodeView &view) { view.tidy(); };
        QCOMPARE(after(command, u"if (temp1>1)  \nfan1 = 2|\n  \n else\n\tx\t= (y)\nendif"_s),
                 u"IF ( temp1>1 )\n    Fan1 = 2|\n\nELSE\n    x = ( y )\nENDIF"_s);
        QCOMPARE(after(command, u"IF a\n|x\n|y"_s), u"IF a\n|    x\n|y"_s);
        QCOMPARE(after(command, u"IF a\nREM (b)  |\nENDIF"_s), u"IF a\n    REM (b)  |\nENDIF"_s);
        QCOMPARE(after(command, u"REM)|"_s), u"REM)|"_s); // would become a comment
        m_host->list->setIndentUnit(u"\t"_s);
        QCOMPARE(after(command, u"IF a\n  |x"_s), u"IF a\n\t|x"_s);
        QCOMPARE(after(command, box().Text().replace(u"\r\n"_s, u"\n"_s)), u"|IF a\n\tx"_s);
    }

    void tidyTouchesOnlyTheLinesThatChange()
    {
        m_host->list->setCodeText(u"Temp1 = 1\r\n  Fan1 = 2"_s); // without colours
        view().tidy();
        QCOMPARE(box().Text(), u"Temp1 = 1\r\nFan1 = 2"_s);
        QCOMPARE(m_host->colourOf(u"Temp1"_s), -1);
        QCOMPARE(m_host->colourOf(u"Fan1"_s), shownColour(m_host->settings.OutputColor));
    }

    void everyChangeIsOneStep_data() { everyChange_data(); }
    void everyChangeIsOneStep()
    {
        QFETCH(const Command, command);
        m_host->list->ClearUndoHistory();
        m_host->setText(changeable().replace(u"\n"_s, u"\r\n"_s));
        const QString before = box().Text();
        const qint64 snapshots = m_host->ring().snapshotCount();
        QSignalSpy change(&box(), &RichTextBox::Change);
        command(view());
        const QString changed = box().Text();
        QVERIFY(changed != before);
        QCOMPARE(change.size(), 1);
        QCOMPARE(m_host->ring().snapshotCount(), snapshots + 1);
        m_host->key('Z', Qt::ControlModifier);
        QCOMPARE(box().Text(), before);
        m_host->key('Y', Qt::ControlModifier);
        QCOMPARE(box().Text(), changed);
    }

    void undoTakesBackOneCommandAfterTheOther_data() { everyChange_data(); }
    void undoTakesBackOneCommandAfterTheOther()
    {
        QFETCH(const Command, command);
        m_host->list->ClearUndoHistory();
        m_host->setText(changeable().replace(u"\n"_s, u"\r\n"_s));
        QStringList texts{box().Text()};
        command(view());
        texts << box().Text();
        view().goToLine(1);
        view().toggleComment();
        texts << box().Text();
        m_host->key(Qt::Key_End);
        m_host->type(u"y"_s);
        view().goToLine(1);
        texts << box().Text();
        view().duplicateLines();
        texts << box().Text();
        for (qsizetype i = texts.size() - 2; i >= 0; --i) {
            m_host->key('Z', Qt::ControlModifier);
            QCOMPARE(box().Text(), texts[i]);
        }
        for (qsizetype i = 1; i < texts.size(); ++i) {
            m_host->key('Y', Qt::ControlModifier);
            QCOMPARE(box().Text(), texts[i]);
        }
    }

    void undoBringsBackAProgramThatACommandEmptied()
    {
        m_host->list->ClearUndoHistory();
        m_host->setText(u"a|"_s);
        view().duplicateLines();
        const QString before = box().Text();
        m_host->key('A', Qt::ControlModifier);
        view().deleteLines();
        QCOMPARE(box().Text(), QString());
        m_host->key('Z', Qt::ControlModifier);
        QCOMPARE(box().Text(), before);
        m_host->key('Z', Qt::ControlModifier);
        m_host->key('Z', Qt::ControlModifier);
        QCOMPARE(box().Text(), u"a"_s);
    }

    void nothingToDoIsNoStep()
    {
        m_host->setText(u"x|"_s);
        const qint64 snapshots = m_host->ring().snapshotCount();
        QSignalSpy change(&box(), &RichTextBox::Change);
        view().moveLines(1);
        view().moveLines(-1);
        view().joinLines();
        view().sortLines();
        view().upperCase();
        view().tidy();
        QCOMPARE(m_host->ring().snapshotCount(), snapshots);
        QCOMPARE(change.size(), 0);
    }

    void whereNobodyMayChangeNothingHappens_data() { everyChange_data(); }
    void whereNobodyMayChangeNothingHappens()
    {
        QFETCH(const Command, command);
        m_host->setText(changeable().replace(u"\n"_s, u"\r\n"_s));
        const QString before = m_host->marked();
        const auto check = [&] {
            command(view());
            QCOMPARE(m_host->marked(), before);
            QVERIFY(!view().commandsEnabled());
        };
        box().setReadOnly(true);
        check();
        box().setReadOnly(false);
        m_host->list->setRichTexteNable(false);
        check();
        m_host->list->setRichTexteNable(true);
        m_host->form.setEnabled(false);
        check();
        m_host->form.setEnabled(true);
        m_host->list->setListviewType(dsInput);
        check();
        m_host->list->setListviewType(dsCode);
        QVERIFY(view().commandsEnabled());
    }

    void theViewStays_data() { everyChange_data(); }
    void theViewStays()
    {
        QFETCH(const Command, command);
        QString lines = u"IF Temp1\n"_s;
        for (int i = 0; i < 200; ++i)
            lines += u"x%1 = 1\n"_s.arg(i);
        m_host->setText(QString(lines + changeable() + lines).replace(u"\n"_s, u"\r\n"_s));
        QCoreApplication::processEvents();
        box().verticalScrollBar()->setValue(195);
        command(view());
        QCOMPARE(box().verticalScrollBar()->value(), 195);
    }

    void whatIsTypedIsFinishedFirst()
    {
        m_host->setText(u"\r\nx|"_s);
        box().setSelStart(0);
        m_host->type(u"if"_s);
        view().moveLines(1);
        QCOMPARE(m_host->marked(), u"x\r\nIF|"_s);
        QCOMPARE(m_host->colourOf(u"IF"_s), shownColour(m_host->settings.ReservedWordColor));
    }

    void aHostMayDestroyTheComponentInChange_data() { everyChange_data(); }
    void aHostMayDestroyTheComponentInChange()
    {
        QFETCH(const Command, command);
        m_host->setText(changeable().replace(u"\n"_s, u"\r\n"_s));
        QPointer<ORVListView> list(m_host->list);
        connect(&box(), &RichTextBox::Change, this, [list] { delete list.data(); });
        command(view());
        QVERIFY(!list);
    }

    void aHostMayDestroyTheComponentWhenTheCaretMoves_data()
    {
        QTest::addColumn<int>("move");
        QTest::newRow("with what is put in") << 1;
        QTest::newRow("to where it was") << 2;
    }
    void aHostMayDestroyTheComponentWhenTheCaretMoves()
    {
        QFETCH(const int, move);
        m_host->setText(u"a|b\r\nc"_s);
        const QPointer<ORVListView> list(m_host->list);
        int moves = 0;
        connect(&box(), &RichTextBox::cursorPositionChanged, this, [&moves, move, list] {
            if (++moves == move)
                delete list.data();
        });
        view().duplicateLines();
        QVERIFY(!list);
    }

    void aHostMayTakeTextAwayWhenTheCaretMoves_data() { everyChange_data(); }
    void aHostMayTakeTextAwayWhenTheCaretMoves()
    {
        QFETCH(const Command, command);
        m_host->setText(changeable().replace(u"\n"_s, u"\r\n"_s));
        bool isTaken = false;
        connect(&box(), &RichTextBox::cursorPositionChanged, this, [this, &isTaken] {
            if (!std::exchange(isTaken, true))
                box().setText(u"x"_s);
        });
        command(view());
        QVERIFY(isTaken);
        QCOMPARE(box().Text(), u"x"_s);
        QVERIFY(box().SelStart() + box().SelLength() <= 1);
    }

    void tellsWhetherCommandsArePossible()
    {
        QCoreApplication::processEvents();
        QSignalSpy told(&view(), &CodeView::commandsEnabledChanged);
        box().setReadOnly(true);
        QVERIFY(!view().commandsEnabled());
        QTRY_COMPARE(told.size(), 1);
        QCOMPARE(told.takeFirst().first().toBool(), false);
        box().setReadOnly(false);
        box().setReadOnly(true);
        QCoreApplication::processEvents();
        QCOMPARE(told.size(), 0);
        box().setReadOnly(false);
        QTRY_COMPARE(told.size(), 1);
        m_host->list->setListviewType(dsInput);
        QTRY_COMPARE(told.size(), 2);
        m_host->list->setListviewType(dsCode);
        QTRY_COMPARE(told.size(), 3);
        connect(&view(), &CodeView::commandsEnabledChanged, this, [this] { delete m_host->list; });
        QPointer<ORVListView> list(m_host->list);
        m_host->list->setListviewType(dsInput);
        QTRY_VERIFY(!list);
    }

    void goesToALine()
    {
        m_host->setLines(300);
        view().goToLine(2);
        QCOMPARE(box().SelStart(), box().lineStart(1));
        QCOMPARE(box().verticalScrollBar()->value(), 0);
        view().goToLine(150);
        QCOMPARE(box().textCursor().blockNumber(), 149);
        const int middle = box().viewport()->height() / 2;
        QVERIFY(std::abs(m_host->placeOf(149).center().y() - middle) <=
                m_host->placeOf(149).height());
        view().goToLine(-5);
        QCOMPARE(box().SelStart(), 0);
        view().goToLine(1000);
        QCOMPARE(box().textCursor().blockNumber(), 299);
        box().setReadOnly(true);
        view().goToLine(1);
        QCOMPARE(box().SelStart(), 0);
        box().setEnabled(false);
        view().goToLine(5);
        QCOMPARE(box().SelStart(), 0);
    }

    void goesToThePartner()
    {
        const Command command = [](CodeView &view) { view.goToPartner(); };
        QCOMPARE(after(command, u"x |( a (b) )"_s), u"x ( a (b) |)"_s);
        QCOMPARE(after(command, u"x ( a (b) )|"_s), u"x |( a (b) )"_s);
        QCOMPARE(after(command, u"|IF a\nIF b\nENDIF\nELSE\nENDIF"_s),
                 u"IF a\nIF b\nENDIF\n|ELSE\nENDIF"_s);
        QCOMPARE(after(command, u"IF a\n  EL|SE\nENDIF"_s), u"IF a\n  ELSE\n|ENDIF"_s);
        QCOMPARE(after(command, u"IF a\nELSE\nENDIF|"_s), u"|IF a\nELSE\nENDIF"_s);
        m_host->setText(u"IF a\r\n|ENDIF x ENDIF"_s);
        QVERIFY(view().goToPartner());
        m_host->setText(u"IF a\r\nENDIF x |ENDIF"_s);
        QVERIFY(!view().goToPartner());
        QCOMPARE(m_host->marked(), u"IF a\r\nENDIF x |ENDIF"_s);
    }
};

ORVT_TEST(LineCommandsTest)
#include "LineCommandsTest.moc"
