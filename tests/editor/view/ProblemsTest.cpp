// Problems of a check and bookmarks: their marks, their places while the text is edited,
// and the ways to them.

#include "editor/view/Problems.h"
#include "editor/view/ViewFixture.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtGui/QHelpEvent>
#include <QtWidgets/QToolTip>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

Problem problem(qint32 line, qint32 from, qint32 length,
                ProblemSeverity severity = ProblemSeverity::Error, const QString &text = u"bad"_s)
{
    return {line, from, length, severity, text};
}

// "line:from+length" of each.
QString places(const QList<Problem> &problems)
{
    QStringList texts;
    for (const Problem &each : problems)
        texts << u"%1:%2+%3"_s.arg(each.line).arg(each.from).arg(each.length);
    return texts.join(u' ');
}

} // namespace

class ProblemsTest : public WidgetTest
{
    Q_OBJECT

private:
    std::unique_ptr<ViewHost> m_host;

    RichTextBox &box() { return m_host->box(); }
    CodeView &view() { return m_host->view(); }
    QString shownPlaces() { return places(view().problems()); }
    QString caret()
    {
        const QTextCursor cursor = box().textCursor();
        return u"%1:%2"_s.arg(cursor.blockNumber() + 1).arg(cursor.positionInBlock());
    }
    void caretTo(qint32 line, qint32 from = 0)
    {
        box().setSelStart(box().lineStart(line - 1) + from);
    }

    // How many pixels of a strip at the foot of a line have the colour.
    int wavePixels(int line, const QColor &colour)
    {
        const QImage shown = m_host->picture(*box().viewport());
        const QRect place = m_host->placeOf(line - 1);
        int pixels = 0;
        for (int y = place.bottom() - 4; y <= place.bottom(); ++y) {
            for (int x = 0; x < shown.width(); ++x) {
                const QColor is = shown.pixelColor(x, y);
                pixels += std::abs(is.hue() - colour.hue()) < 15 && is.saturation() > 60;
            }
        }
        return pixels;
    }
    // The colour in the middle of the marks' cell of a line.
    QColor signOn(int line)
    {
        const QImage shown = m_host->picture(m_host->margin());
        const QRect place = m_host->placeOf(line - 1);
        return shown.pixelColor(std::max(12, box().fontMetrics().height() * 3 / 4) / 2,
                                place.center().y() + 1);
    }
    QColor colourOf(ProblemSeverity severity)
    {
        return Problems::colourOf(severity, m_host->ground());
    }

private Q_SLOTS:
    void init() override
    {
        WidgetTest::init();
        QApplication::setCursorFlashTime(0);
        m_host = std::make_unique<ViewHost>();
        m_host->list->setCodeText(u"one = tmep\r\ntwo = 2\r\n\r\nfour = xyz"_s);
    }
    void cleanup() override
    {
        m_host.reset();
        WidgetTest::cleanup();
    }

    void comeBackFromTheTop()
    {
        QCOMPARE(shownPlaces(), QString());
        view().setProblems({problem(4, 7, 3), problem(1, 6, 4), problem(1, 0, 3)});
        QCOMPARE(shownPlaces(), u"1:0+3 1:6+4 4:7+3"_s);
        QCOMPARE(view().problems().first().text, u"bad"_s);
        view().setProblems({});
        QCOMPARE(view().problems().size(), 0);
    }

    void placesOutsideCountAsTheNearestOnes()
    {
        view().setProblems({problem(-3, -1, 2), problem(1, 99, 9), problem(2, 4, 999),
                            problem(2, 6, 0), problem(99, 0, 4)});
        QCOMPARE(shownPlaces(), u"1:0+2 1:10+0 2:4+3 2:6+1 4:0+4"_s);
    }

    void areUnderlined()
    {
        const QImage before = m_host->picture(*box().viewport());
        view().setProblems({problem(1, 6, 4), problem(4, 0, 4, ProblemSeverity::Warning)});
        QVERIFY(wavePixels(1, colourOf(ProblemSeverity::Error)) > 10);
        QCOMPARE(wavePixels(2, colourOf(ProblemSeverity::Error)), 0);
        QVERIFY(wavePixels(4, colourOf(ProblemSeverity::Warning)) > 10);
        view().setProblems({});
        QCOMPARE(m_host->picture(*box().viewport()), before);
    }

    void haveASignInTheMargin()
    {
        view().setProblems({problem(1, 6, 4, ProblemSeverity::Hint), problem(1, 0, 3),
                            problem(4, 0, 4, ProblemSeverity::Warning)});
        QVERIFY(m_host->margin().isVisible());
        QCOMPARE(signOn(1), colourOf(ProblemSeverity::Error)); // the worst
        QCOMPARE(signOn(2), m_host->ground());
        QCOMPARE(signOn(4), colourOf(ProblemSeverity::Warning));
        view().setProblems({});
        QVERIFY(!m_host->margin().isVisible());
    }

    void theTextStaysWhereItIsWhenTheFirstOneComes()
    {
        view().setLineNumbersVisible(true);
        const int left = box().viewport()->x();
        view().setProblems({problem(1, 0, 3)});
        QCOMPARE(box().viewport()->x(), left);
    }

    void areMarkedOnTheScrollBar()
    {
        m_host->setLines(300);
        QScrollBar &bar = *box().verticalScrollBar();
        const QImage before = m_host->picture(bar);
        view().setProblems({problem(150, 0, 1)});
        const QImage after = m_host->picture(bar);
        int first = -1;
        for (int y = 0; y < after.height() && first < 0; ++y) {
            if (after.pixel(after.width() / 2, y) != before.pixel(before.width() / 2, y))
                first = y;
        }
        QVERIFY(std::abs(first - bar.height() / 2) < 8);
        QTest::mouseClick(&bar, Qt::LeftButton, {}, {bar.width() / 2, first}); // goes through
        QVERIFY(bar.value() > 0);
        view().setProblems({});
        bar.setValue(0);
        QCOMPARE(m_host->picture(bar), before);
    }

    void moveWithTheTextThatIsEdited()
    {
        view().setProblems({problem(1, 6, 4), problem(4, 7, 3)});
        caretTo(1);
        m_host->type(u"x\n"_s);
        QCOMPARE(shownPlaces(), u"2:6+4 5:7+3"_s);
        m_host->key(Qt::Key_Backspace);
        QCOMPARE(shownPlaces(), u"1:7+4 4:7+3"_s);
        caretTo(1, 9);
        m_host->type(u"ab"_s);
        QCOMPARE(shownPlaces(), u"1:7+6 4:7+3"_s);
    }

    void goWithTheirText()
    {
        view().setProblems({problem(1, 6, 4), problem(4, 7, 3)});
        caretTo(1, 6);
        box().setSelLength(4);
        m_host->key(Qt::Key_Delete);
        QCOMPARE(shownPlaces(), u"4:7+3"_s);
        QVERIFY(view().nextProblem());
        QCOMPARE(caret(), u"4:7"_s);
    }

    void goWithTheWholeText()
    {
        view().setProblems({problem(1, 6, 4), problem(3, 0, 0)});
        view().toggleBookmark();
        m_host->list->openProgram(u"other"_s);
        QCOMPARE(shownPlaces(), QString());
        QVERIFY(!view().nextProblem());
        QVERIFY(!view().nextBookmark());
        QTRY_VERIFY(!m_host->margin().isVisible());
        view().setProblems({problem(1, 0, 5)});
        m_host->list->setCodeText(u"another"_s);
        view().setProblems({problem(1, 0, 7)}); // before the former ones are forgotten
        QCoreApplication::processEvents();
        QCOMPARE(shownPlaces(), u"1:0+7"_s);
        QVERIFY(m_host->margin().isVisible());
    }

    void stayOverColouring()
    {
        m_host->list->openProgram(u"one = temp1\r\nif x"_s);
        view().setProblems({problem(1, 6, 5), problem(2, 0, 2)});
        caretTo(2, 4);
        m_host->type(u"y "_s); // finishes the line
        QCOMPARE(box().lineText(1), u"IF xy "_s);
        QCOMPARE(shownPlaces(), u"1:6+5 2:0+2"_s);
    }

    void stayOverUndoOnLinesThatItLeaves()
    {
        m_host->list->openProgram(QStringList(12, u"one = temp1"_s).join(u"\r\n"_s));
        view().setProblems({problem(1, 6, 5), problem(5, 6, 5), problem(10, 0, 3)});
        caretTo(12);
        view().toggleBookmark();
        caretTo(5);
        m_host->type(u"a b\n"_s);
        QCOMPARE(shownPlaces(), u"1:6+5 6:6+5 11:0+3"_s);
        m_host->key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(box().lineCount(), 12);
        QVERIFY(shownPlaces().startsWith(u"1:6+5 "_s));
        QVERIFY(shownPlaces().endsWith(u" 10:0+3"_s));
        QVERIFY(view().nextBookmark());
        QCOMPARE(caret(), u"12:0"_s);
    }

    void areReachedInTurn()
    {
        view().setProblems({problem(1, 6, 4), problem(2, 0, 3), problem(4, 7, 3)});
        caretTo(2, 5);
        QVERIFY(view().nextProblem());
        QCOMPARE(caret(), u"4:7"_s);
        QVERIFY(view().nextProblem());
        QCOMPARE(caret(), u"1:6"_s);
        QVERIFY(view().previousProblem());
        QCOMPARE(caret(), u"4:7"_s);
        QVERIFY(view().previousProblem());
        QCOMPARE(caret(), u"2:0"_s);
        QCOMPARE(box().SelLength(), 0);
    }

    void aSingleOneIsReachedAgain()
    {
        QVERIFY(!view().nextProblem());
        QVERIFY(!view().previousProblem());
        view().setProblems({problem(2, 0, 3)});
        for (int i = 0; i < 2; ++i) {
            QVERIFY(view().nextProblem());
            QCOMPARE(caret(), u"2:0"_s);
        }
    }

    void theOneReachedIsShown()
    {
        m_host->setLines(300);
        view().setProblems({problem(200, 0, 1)});
        QVERIFY(view().nextProblem());
        QVERIFY(box().viewport()->rect().contains(box().cursorRect()));
    }

    void thatOneIsChosenIsTold()
    {
        QSignalSpy chosen(&view(), &CodeView::problemChosen);
        view().setProblems({problem(2, 0, 3, ProblemSeverity::Hint, u"look"_s)});
        view().nextProblem();
        view().previousProblem();
        caretTo(4);
        QTest::mouseClick(&m_host->margin(), Qt::LeftButton, {}, {4, m_host->inMargin(1).y()});
        QCOMPARE(chosen.count(), 3);
        QCOMPARE(chosen.last().first().value<Problem>().text, u"look"_s);
        QCOMPARE(caret(), u"2:0"_s);
        QCOMPARE(box().SelLength(), 0);
        QTest::mouseClick(&m_host->margin(), Qt::LeftButton, {}, {4, m_host->inMargin(0).y()});
        QCOMPARE(chosen.count(), 3); // no sign there
        QCOMPARE(box().SelText(), u"one = tmep\r\n"_s);
    }

    void theHostMayDoAnythingWhenOneIsChosen()
    {
        view().setProblems({problem(2, 0, 3), problem(4, 0, 2)});
        connect(&view(), &CodeView::problemChosen, this, [this] {
            view().setProblems({});
            m_host->list->setCodeText({});
        });
        QVERIFY(view().nextProblem());
        QVERIFY(!view().nextProblem());
    }

    void theControlMayBeDestroyedWhenOneIsChosen()
    {
        view().setProblems({problem(2, 0, 3)});
        connect(&view(), &CodeView::problemChosen, this, [this] { delete m_host->list; });
        view().nextProblem();
    }

    void theTextIsATip()
    {
        view().setProblems({problem(1, 6, 4, ProblemSeverity::Error, u"<b>tmep</b>?"_s)});
        const auto ask = [](QWidget &widget, const QPoint &place) {
            QHelpEvent event(QEvent::ToolTip, place, widget.mapToGlobal(place));
            QCoreApplication::sendEvent(&widget, &event);
        };
        QTextCursor inside(box().document());
        inside.setPosition(8);
        ask(*box().viewport(), box().cursorRect(inside).center());
        QTRY_VERIFY(QToolTip::text().contains(u"tmep"_s));
        QToolTip::hideText();
        QTRY_VERIFY(!QToolTip::isVisible());
        ask(*box().viewport(), {box().cursorRect(inside).center().x(), m_host->placeOf(0).top()});
        QTRY_VERIFY(QToolTip::text().contains(u"tmep"_s));
        QToolTip::hideText();
        QTRY_VERIFY(!QToolTip::isVisible());
        ask(*box().viewport(), m_host->placeOf(1).center());
        QVERIFY(!QToolTip::isVisible());
        ask(m_host->margin(), {4, m_host->inMargin(0).y()});
        QTRY_VERIFY(QToolTip::text().contains(u"tmep"_s));
        QToolTip::hideText();
    }

    void theCaretsLineTellsScreenReaders()
    {
        box().setAccessibleDescription(u"the host's"_s);
        view().setProblems({problem(2, 0, 3, ProblemSeverity::Error, u"no"_s),
                            problem(2, 4, 1, ProblemSeverity::Error, u"nor this"_s)});
        QCOMPARE(box().accessibleDescription(), u"the host's"_s);
        m_host->key(Qt::Key_Down);
        QCOMPARE(box().accessibleDescription(), u"no\nnor this"_s);
        m_host->key(Qt::Key_Down);
        QCOMPARE(box().accessibleDescription(), u"the host's"_s);
        m_host->key(Qt::Key_Up);
        view().setProblems({});
        QCOMPARE(box().accessibleDescription(), u"the host's"_s);
    }

    void theCaretsLineTellsItsNumberAndFold()
    {
        m_host->list->setCodeText(u"IF a\r\nb = 1\r\nc = 1\r\nENDIF\r\nd"_s);
        view().setLineNumbersVisible(true);
        QCOMPARE(box().accessibleDescription(), u"Line 1"_s);
        view().setFoldingEnabled(true);
        view().foldAll();
        QCOMPARE(box().accessibleDescription(), u"Line 1\n2 lines hidden"_s);
        view().setProblems({problem(1, 0, 2, ProblemSeverity::Error, u"no"_s)});
        QCOMPARE(box().accessibleDescription(), u"Line 1\n2 lines hidden\nno"_s);
        m_host->key(Qt::Key_Down);
        QCOMPARE(box().accessibleDescription(), u"Line 4"_s);
        m_host->key(Qt::Key_Return);
        QCOMPARE(box().accessibleDescription(), u"Line 5"_s);
        m_host->key(Qt::Key_Up);
        m_host->key(Qt::Key_Up);
        view().unfoldAll();
        QCOMPARE(box().accessibleDescription(), u"Line 1\nno"_s);
        box().setAccessibleDescription(u"the host's"_s);
        m_host->key(Qt::Key_Down);
        QCOMPARE(box().accessibleDescription(), u"the host's\nLine 2"_s);
        view().setLineNumbersVisible(false);
        QCOMPARE(box().accessibleDescription(), u"the host's"_s);
        view().setFoldingEnabled(false);
        view().setProblems({});
        QCOMPARE(box().accessibleDescription(), u"the host's"_s);
    }

    void aBookmarkComesAndGoes()
    {
        view().toggleBookmark();
        QVERIFY(m_host->margin().isVisible());
        QVERIFY(signOn(1) != m_host->ground());
        QCOMPARE(signOn(2), m_host->ground());
        caretTo(1, 5);
        view().toggleBookmark();
        QVERIFY(!m_host->margin().isVisible());
        QVERIFY(!view().nextBookmark());
    }

    void bookmarksAreReachedInTurn()
    {
        for (const int line : {4, 2}) {
            caretTo(line, 1);
            view().toggleBookmark();
        }
        QVERIFY(view().nextBookmark());
        QCOMPARE(caret(), u"4:0"_s);
        QVERIFY(view().nextBookmark());
        QCOMPARE(caret(), u"2:0"_s);
    }

    void aHostKeepsBookmarks()
    {
        view().setBookmarks({3, 1, 1, 0, 99, -2, 2147483647});
        QCOMPARE(view().bookmarks(), QList<qint32>({1, 3}));
        caretTo(2);
        view().toggleBookmark();
        QCOMPARE(view().bookmarks(), QList<qint32>({1, 2, 3}));
        view().setBookmarks({});
        QVERIFY(!view().nextBookmark());
        QVERIFY(!m_host->margin().isVisible());
    }

    void aBookmarkGoesWithItsLine()
    {
        caretTo(2);
        view().toggleBookmark();
        caretTo(1);
        m_host->type(u"new\n"_s);
        caretTo(3);
        m_host->type(u"\n"_s); // before the line
        QVERIFY(view().nextBookmark());
        QCOMPARE(caret(), u"4:0"_s);
        QCOMPARE(box().textCursor().block().text(), u"two = 2"_s);
    }

    void followTheirLines_data()
    {
        QTest::addColumn<int>("first"); // of the lines that are moved
        QTest::addColumn<int>("last");
        QTest::addColumn<int>("by");
        QTest::addColumn<QString>("places");
        QTest::newRow("down") << 1 << 1 << 1 << u"1:0+3 2:2+1 2:6+0 4:0+1"_s;
        QTest::newRow("far down") << 1 << 1 << 9 << u"1:0+3 3:0+1 4:2+1 4:6+0"_s;
        QTest::newRow("up") << 4 << 4 << -1 << u"1:2+1 1:6+0 2:0+3 3:0+1"_s;
        QTest::newRow("several up") << 2 << 4 << -1 << u"1:0+3 3:0+1 4:2+1 4:6+0"_s;
        QTest::newRow("several down") << 1 << 2 << 1 << u"2:2+1 2:6+0 3:0+3 4:0+1"_s;
    }
    void followTheirLines()
    {
        QFETCH(const int, first);
        QFETCH(const int, last);
        QFETCH(const int, by);
        QFETCH(const QString, places);
        m_host->list->setCodeText(u"a = 12\r\nbbb = 2\r\n\r\nd = 1"_s);
        view().setProblems(
            {problem(1, 2, 1), problem(1, 6, 1), problem(2, 0, 3), problem(4, 0, 1)});
        const QString marked[] = {u"a = 12"_s, u"bbb = 2"_s, u"d = 1"_s};
        for (const int line : {1, 2, 4}) {
            caretTo(line, 1);
            view().toggleBookmark();
        }
        caretTo(first);
        box().setSelLength(box().lineStart(last - 1) + 1 - box().SelStart());
        view().moveLines(by);
        QCOMPARE(shownPlaces(), places);
        QStringList found;
        caretTo(box().lineCount(), 1);
        for (int i = 0; i < 3; ++i) {
            QVERIFY(view().nextBookmark());
            found.append(box().textCursor().block().text());
        }
        found.sort();
        QCOMPARE(found, QStringList(std::begin(marked), std::end(marked)));
    }

    void followTheirLinesWhenTheseAreSorted()
    {
        m_host->list->setCodeText(u"c = 1\r\nb = 1\r\na = 1\r\nx"_s);
        view().setProblems({problem(1, 4, 1), problem(3, 0, 1), problem(4, 0, 1)});
        caretTo(1, 2);
        view().toggleBookmark();
        caretTo(1);
        box().setSelLength(box().lineStart(2) + 1);
        view().sortLines();
        QCOMPARE(box().lineText(0), u"a = 1"_s);
        QCOMPARE(shownPlaces(), u"1:0+1 3:4+1 4:0+1"_s);
        caretTo(1);
        QVERIFY(view().nextBookmark());
        QCOMPARE(caret(), u"3:0"_s);
    }

    void nothingOfItIsInTheText()
    {
        const QString rtf = m_host->list->CodeTextRTF();
        QSignalSpy changed(&box(), &RichTextBox::Change);
        view().setProblems({problem(1, 6, 4)});
        view().toggleBookmark();
        QCOMPARE(m_host->list->CodeTextRTF(), rtf);
        QCOMPARE(changed.count(), 0);
    }
};

ORVT_TEST(ProblemsTest)
#include "ProblemsTest.moc"
