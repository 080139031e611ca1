// The margin with the numbers of the lines, and the ground of the caret's line.

#include "editor/view/ViewColours.h"
#include "editor/view/ViewFixture.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/box/BoxLayers.h"
#include "widgets/look/Luminance.h"

#include <QtGui/QAccessible>
#include <QtGui/QWheelEvent>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// The strongest contrast to the ground in a part of a picture.
double strongest(const QImage &picture, const QRect &part, const QColor &ground)
{
    double most = 1;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x)
            most = std::max(most, contrast(picture.pixelColor(x, y), ground));
    }
    return most;
}

} // namespace

class MarginTest : public WidgetTest
{
    Q_OBJECT

private:
    std::unique_ptr<ViewHost> m_host;

    RichTextBox &box() { return m_host->box(); }
    CodeView &view() { return m_host->view(); }
    QWidget &margin() { return m_host->margin(); }
    QScrollBar &vertical() { return *box().verticalScrollBar(); }
    QString selected() { return box().SelText(); }
    int caretLine() { return box().textCursor().blockNumber(); }

    void drag(int from, int to)
    {
        QTest::mousePress(&margin(), Qt::LeftButton, {}, m_host->inMargin(from));
        const QPoint end = m_host->inMargin(to);
        QMouseEvent move(QEvent::MouseMove, end, margin().mapToGlobal(end), Qt::NoButton,
                         Qt::LeftButton, {});
        QCoreApplication::sendEvent(&margin(), &move);
        QTest::mouseRelease(&margin(), Qt::LeftButton, {}, end);
    }

private Q_SLOTS:
    // The toolkit adds the margin of the document to it.
    void theLastLineIsAsHighAsTheOthers()
    {
        view().setCurrentLineShown(true);
        const ShownLines lines = BoxLayers::of(box()).shownLines();
        QCOMPARE(lines.size(), 4);
        QCOMPARE(lines.constLast().place.height(), lines.at(1).place.height());
        m_host->list->setCodeText(u"one"_s);
        QCOMPARE(BoxLayers::of(box()).shownLines().constFirst().place.height(),
                 lines.at(1).place.height());
    }

    void init() override
    {
        WidgetTest::init();
        QApplication::setCursorFlashTime(0);
        m_host = std::make_unique<ViewHost>();
        m_host->list->setCodeText(u"one = 1\r\ntwo = 2\r\n\r\nfour = 4"_s);
    }
    void cleanup() override
    {
        m_host.reset();
        WidgetTest::cleanup();
    }

    void isNotThereAtFirst()
    {
        QVERIFY(!view().lineNumbersVisible());
        QVERIFY(!margin().isVisible());
        QCOMPARE(box().viewport()->x(), box().frameWidth());
    }

    void followsTheTextOfItsLines()
    {
        view().setLineNumbersVisible(true);
        view().setFoldingEnabled(true);
        m_host->list->setCodeText(u"one = 1\r\nI x\r\ntwo = 2\r\nENDIF"_s);
        Problem problem;
        problem.length = 3;
        view().setProblems({problem});
        QCoreApplication::processEvents();
        Painted beside;
        margin().installEventFilter(&beside);
        const auto isPainted = [&](int line) {
            QCoreApplication::processEvents();
            const QRegion region = std::exchange(beside.region, {});
            return region.contains(m_host->inMargin(line));
        };
        box().setSelStart(box().lineStart(1) + 1);
        QVERIFY(isPainted(1)); // its number stands out
        m_host->type(u"F"_s);  // and has a sign
        QVERIFY(isPainted(1));
        m_host->key(Qt::Key_End);
        m_host->type(u"x"_s);
        QVERIFY(!isPainted(1));
        box().setSelStart(3);
        QVERIFY(isPainted(0));
        for (int i = 0; i < 3; ++i)
            m_host->key(Qt::Key_Backspace);
        QVERIFY(isPainted(0)); // the problem went with its text
    }

    void leavesNothingBehindWhenSwitchedOff()
    {
        const QImage before = m_host->picture(box());
        view().setLineNumbersVisible(true);
        view().setCurrentLineShown(true);
        QVERIFY(m_host->picture(box()) != before);
        view().setLineNumbersVisible(false);
        view().setCurrentLineShown(false);
        QCOMPARE(m_host->picture(box()), before);
    }

    void tellsOfAnotherValueOnly()
    {
        QSignalSpy numbers(&view(), &CodeView::lineNumbersVisibleChanged);
        QSignalSpy line(&view(), &CodeView::currentLineShownChanged);
        for (const bool on : {false, true, true, false}) {
            view().setLineNumbersVisible(on);
            view().setCurrentLineShown(on);
        }
        QCOMPARE(numbers.count(), 2);
        QCOMPARE(line.count(), 2);
        QCOMPARE(numbers.first().first().toBool(), true);
    }

    void standsBesideTheText()
    {
        view().setLineNumbersVisible(true);
        QVERIFY(margin().isVisible());
        QCOMPARE(margin().geometry().right() + 1, box().viewport()->x());
        QCOMPARE(margin().y(), box().viewport()->y());
        QCOMPARE(margin().height(), box().viewport()->height());
        m_host->list->resize(m_host->list->width(), m_host->list->height() - 60);
        QTRY_COMPARE(margin().height(), box().viewport()->height());
    }

    void standsOnTheRightWhereLinesBeginThere()
    {
        m_host->form.setLayoutDirection(Qt::RightToLeft);
        view().setLineNumbersVisible(true);
        QTRY_COMPARE(margin().x(), box().viewport()->geometry().right() + 1);
        QTest::mouseClick(&margin(), Qt::LeftButton, {}, m_host->inMargin(1));
        QCOMPARE(selected(), u"two = 2\r\n"_s);
        m_host->form.setLayoutDirection(Qt::LeftToRight);
        QTRY_COMPARE(margin().geometry().right() + 1, box().viewport()->x());
    }

    void growsWithTheNumberOfDigits()
    {
        view().setLineNumbersVisible(true);
        m_host->setLines(99);
        const int narrow = margin().width();
        box().setSelStart(box().TextLength());
        m_host->type(u"\n"_s);
        QVERIFY(margin().width() > narrow);
        QCOMPARE(margin().geometry().right() + 1, box().viewport()->x());
        m_host->key(Qt::Key_Backspace);
        QCOMPARE(margin().width(), narrow);
    }

    void growsWithTheFont()
    {
        view().setLineNumbersVisible(true);
        const int narrow = margin().width();
        box().setFontSize(20);
        QVERIFY(margin().width() > narrow);
    }

    void aClickSelectsTheLineWithItsEnd()
    {
        view().setLineNumbersVisible(true);
        QTest::mouseClick(&margin(), Qt::LeftButton, {}, m_host->inMargin(1));
        QCOMPARE(selected(), u"two = 2\r\n"_s);
        QCOMPARE(caretLine(), 2);
        QTest::mouseClick(&margin(), Qt::LeftButton, {}, m_host->inMargin(2));
        QCOMPARE(selected(), u"\r\n"_s);
        QTest::mouseClick(&margin(), Qt::LeftButton, {}, m_host->inMargin(3));
        QCOMPARE(selected(), u"four = 4"_s);
    }

    void aClickBelowTheTextSelectsTheLastLine()
    {
        view().setLineNumbersVisible(true);
        QTest::mouseClick(&margin(), Qt::LeftButton, {}, {3, margin().height() - 3});
        QCOMPARE(selected(), u"four = 4"_s);
    }

    void aDragSelectsLinesUpAndDown()
    {
        view().setLineNumbersVisible(true);
        drag(0, 1);
        QCOMPARE(selected(), u"one = 1\r\ntwo = 2\r\n"_s);
        QCOMPARE(caretLine(), 2);
        drag(1, 0);
        QCOMPARE(selected(), u"one = 1\r\ntwo = 2\r\n"_s);
        QCOMPARE(box().textCursor().position(), 0);
    }

    void shiftAndAClickSelectFromTheAnchorOn()
    {
        view().setLineNumbersVisible(true);
        QTest::mouseClick(&margin(), Qt::LeftButton, {}, m_host->inMargin(1));
        QTest::mouseClick(&margin(), Qt::LeftButton, Qt::ShiftModifier, m_host->inMargin(3));
        QCOMPARE(selected(), u"two = 2\r\n\r\nfour = 4"_s);
        QTest::mouseClick(&margin(), Qt::LeftButton, Qt::ShiftModifier, m_host->inMargin(2));
        QCOMPARE(selected(), u"two = 2\r\n\r\n"_s);
    }

    void aDragBeyondTheEdgeScrolls()
    {
        m_host->setLines(200);
        view().setLineNumbersVisible(true);
        QTest::mousePress(&margin(), Qt::LeftButton, {}, m_host->inMargin(1));
        const QPoint below(3, margin().height() + 20);
        QMouseEvent move(QEvent::MouseMove, below, margin().mapToGlobal(below), Qt::NoButton,
                         Qt::LeftButton, {});
        QCoreApplication::sendEvent(&margin(), &move);
        QTRY_VERIFY(vertical().value() > 3);
        QTest::mouseRelease(&margin(), Qt::LeftButton, {}, below);
        const int top = vertical().value();
        QVERIFY(caretLine() > top);
        QTest::qWait(120);
        QCOMPARE(vertical().value(), top);
    }

    void aClickKeepsTheView()
    {
        m_host->setLines(200, u"x%1 = a long line that goes on and on and on and on, so it does"
                              " not fit, whatever the width of the window may be, or will be"_s);
        view().setLineNumbersVisible(true);
        vertical().setValue(50);
        box().horizontalScrollBar()->setValue(30);
        const QPoint bottom(3, margin().height() - 2);
        QTest::mouseClick(&margin(), Qt::LeftButton, {}, bottom);
        QVERIFY(selected().startsWith(u'x'));
        QCOMPARE(vertical().value(), 50);
        QCOMPARE(box().horizontalScrollBar()->value(), 30);
    }

    void leavesTheFocusWithTheText()
    {
        view().setLineNumbersVisible(true);
        QCOMPARE(margin().focusPolicy(), Qt::NoFocus);
        m_host->after->setFocus();
        QTest::mouseClick(&margin(), Qt::LeftButton, {}, m_host->inMargin(0));
        QVERIFY(box().hasFocus());
        m_host->type(u"z"_s);
        QVERIFY(box().Text().startsWith(u"ztwo"_s));
    }

    void isNoPartOfTheTextForTheHost()
    {
        view().setLineNumbersVisible(true);
        QSignalSpy down(m_host->list, &ORVListView::MouseDown);
        QTest::mouseClick(&margin(), Qt::LeftButton, {}, m_host->inMargin(1));
        QTest::mouseClick(&margin(), Qt::RightButton, {}, m_host->inMargin(1));
        QCOMPARE(down.count(), 0);
        QCOMPARE(selected(), u"two = 2\r\n"_s);
    }

    void theWheelScrollsTheText()
    {
        m_host->setLines(200);
        view().setLineNumbersVisible(true);
        const QPointF place(3, 30);
        QWheelEvent wheel(place, margin().mapToGlobal(place), {}, {0, -120}, {}, {},
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&margin(), &wheel);
        QVERIFY(vertical().value() > 0);
    }

    void numbersAreReadable_data()
    {
        QTest::addColumn<QColor>("ground");
        QTest::addColumn<QColor>("text");
        QTest::newRow("light") << QColor(Qt::white) << QColor(Qt::black);
        QTest::newRow("dark") << QColor(0x1e, 0x1f, 0x22) << QColor(0xdf, 0xe1, 0xe5);
        QTest::newRow("high contrast") << QColor(Qt::black) << QColor(Qt::yellow);
        QTest::newRow("text of little contrast") << QColor(0x80, 0x80, 0x80) << QColor(Qt::gray);
    }
    void numbersAreReadable()
    {
        QFETCH(const QColor, ground);
        QFETCH(const QColor, text);
        QPalette palette = m_host->form.palette();
        palette.setColor(QPalette::Base, ground);
        palette.setColor(QPalette::Text, text);
        m_host->form.setPalette(palette);
        box().setBackColor(static_cast<qint32>(0x80000005U));
        box().setFontSize(24); // strokes thick enough to show their colour
        view().setLineNumbersVisible(true);
        const QImage shown = m_host->picture(margin());
        for (const int line : {0, 1}) {
            const QRect place = m_host->placeOf(line);
            const QRect part(0, place.top(), shown.width() - 2, place.height());
            QVERIFY(strongest(shown, part, ground) >= 4.4);
        }
    }

    void hasTheHostsGround()
    {
        view().setLineNumbersVisible(true);
        box().setBackColor(0x00C0FFEE);
        QCOMPARE(m_host->picture(margin()).pixelColor(0, margin().height() - 2),
                 QColor(0xEE, 0xFF, 0xC0));
    }

    void theCaretsNumberStandsOut()
    {
        m_host->list->setCodeText(u"a\r\nb\r\nc"_s);
        box().setFontSize(24);
        view().setLineNumbersVisible(true);
        const auto strength = [this](int line) {
            const QImage shown = m_host->picture(margin());
            const QRect place = m_host->placeOf(line);
            return strongest(shown, QRect(0, place.top(), shown.width() - 2, place.height()),
                             m_host->ground());
        };
        QVERIFY(strength(0) > strength(1) + 1);
        m_host->key(Qt::Key_Down);
        QVERIFY(strength(1) > strength(0) + 1);
    }

    void isToldToScreenReaders()
    {
        view().setLineNumbersVisible(true);
        QAccessibleInterface *access = QAccessible::queryAccessibleInterface(&margin());
        QVERIFY(access);
        QCOMPARE(access->role(), QAccessible::RowHeader);
        QCOMPARE(access->text(QAccessible::Name), u"Line numbers"_s);
    }

    void staysOverAChangeOfType()
    {
        view().setLineNumbersVisible(true);
        CodeView *before = m_host->list->codeView();
        m_host->list->setListviewType(dsInput);
        QVERIFY(!margin().isVisible());
        m_host->list->setListviewType(dsCode);
        QCOMPARE(m_host->list->codeView(), before);
        QVERIFY(margin().isVisible());
    }

    void theCaretsLineHasItsGround()
    {
        view().setCurrentLineShown(true);
        QVERIFY(m_host->colourBesideText(0) != m_host->ground());
        QCOMPARE(m_host->colourBesideText(1), m_host->ground());
        m_host->key(Qt::Key_Down);
        QCOMPARE(m_host->colourBesideText(0), m_host->ground());
        QVERIFY(m_host->colourBesideText(1) != m_host->ground());
        box().setSelLength(3);
        QVERIFY(m_host->colourBesideText(1) != m_host->ground());
        box().setSelLength(12); // over the line's end
        QCOMPARE(m_host->colourBesideText(1), m_host->ground());
    }

    void theCaretsGroundLeavesTextReadable_data()
    {
        QTest::addColumn<QColor>("ground");
        QTest::newRow("white") << QColor(Qt::white);
        QTest::newRow("the editor's grey") << QColor(223, 223, 223);
        QTest::newRow("dark") << QColor(0x1e, 0x1f, 0x22);
        QTest::newRow("black") << QColor(Qt::black);
    }
    void theCaretsGroundLeavesTextReadable()
    {
        QFETCH(const QColor, ground);
        const QColor faint = ViewColours::faintGround(ground);
        QVERIFY(faint != ground);
        QVERIFY(contrast(faint, ground) < 1.3);
        const bool isLight = ground.lightness() > 128;
        for (int step = 0; step < 64; ++step) {
            const int level = isLight ? step : 255 - step;
            for (const QColor &text : {QColor(level, level, level), QColor(level, 0, 0),
                                       QColor(level, 255 - level, level)}) {
                const double before = contrast(text, ground);
                if (before < 4.5)
                    continue;
                // A hundredth or two are lost where the ground can go nowhere.
                QVERIFY(contrast(text, faint) >= before * 0.97);
            }
        }
    }
};

ORVT_TEST(MarginTest)
#include "MarginTest.moc"
