// What is marked at the caret: brackets, the words of a block, and other uses of a word.

#include "editor/view/BlockSearch.h"
#include "editor/view/ViewFixture.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/look/Luminance.h"

#include <QtCore/QTimer>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class PairMarksTest : public WidgetTest
{
    Q_OBJECT

private:
    std::unique_ptr<ViewHost> m_host;

    RichTextBox &box() { return m_host->box(); }
    CodeView &view() { return m_host->view(); }

    void setRest(int milliseconds)
    {
        box().findChild<QTimer *>(u"WordRest"_s)->setInterval(milliseconds);
    }

    // The ground behind a character: the colour most of its cell has.
    QColor groundAt(int position)
    {
        const QImage shown = m_host->picture(*box().viewport());
        QTextCursor cursor(box().document());
        cursor.setPosition(position);
        const QRect left = box().cursorRect(cursor);
        cursor.setPosition(position + 1);
        const QRect right = box().cursorRect(cursor);
        QHash<QRgb, int> counts;
        for (int y = left.top() + 3; y < left.bottom() - 2; ++y) {
            for (int x = left.left() + 2; x < right.left(); ++x)
                ++counts[shown.pixel(x, y)];
        }
        return QColor(std::max_element(counts.cbegin(), counts.cend(), [](int a, int b) {
                          return a < b;
                      }).key());
    }
    // The characters with a mark below them, each as "line:offset".
    QString marked()
    {
        QStringList places;
        for (QTextBlock line = box().document()->firstBlock(); line.isValid(); line = line.next()) {
            for (int i = 0; i < line.length() - 1; ++i) {
                if (line.text()[i] != u' ' && groundAt(line.position() + i) != m_host->ground())
                    places << u"%1:%2"_s.arg(line.blockNumber()).arg(i);
            }
        }
        return places.join(u' ');
    }
    bool isReddish(int position)
    {
        const QColor colour = groundAt(position);
        return colour.red() - m_host->ground().red() > colour.blue() - m_host->ground().blue() + 5;
    }

private Q_SLOTS:
    void init() override
    {
        WidgetTest::init();
        QApplication::setCursorFlashTime(0);
        m_host = std::make_unique<ViewHost>();
        box().setFontSize(16);
        view().setPairsShown(true);
        setRest(100'000); // only where a test wants it
    }
    void cleanup() override
    {
        m_host.reset();
        WidgetTest::cleanup();
    }

    void nothingIsMarkedWithoutAPair()
    {
        m_host->setText(u"|a ( b )"_s);
        QCOMPARE(marked(), QString());
    }

    void bracketsAreMarkedFromBothSides()
    {
        m_host->setText(u"a |( b )"_s);
        QCOMPARE(marked(), u"0:2 0:6"_s);
        m_host->key(Qt::Key_Right);
        QCOMPARE(marked(), u"0:2 0:6"_s);
        m_host->key(Qt::Key_Right);
        QCOMPARE(marked(), QString());
        m_host->key(Qt::Key_End);
        QCOMPARE(marked(), u"0:2 0:6"_s);
    }

    void aBracketWithoutPartnerLooksWrong()
    {
        m_host->setText(u"a |( b"_s);
        QCOMPARE(marked(), u"0:2"_s);
        QVERIFY(isReddish(2));
        m_host->key(Qt::Key_End);
        m_host->type(u" )"_s);
        QCOMPARE(marked(), u"0:2 0:6"_s);
        QVERIFY(!isReddish(2));
        m_host->key(Qt::Key_Backspace);
        QCOMPARE(marked(), QString());
    }

    void aSelectionHasNoPairs()
    {
        m_host->setText(u"a |( b| )"_s);
        QTextCursor none = box().textCursor();
        none.setPosition(2);
        box().setTextCursor(none);
        QCOMPARE(marked(), u"0:2 0:6"_s);
        m_host->key(Qt::Key_Right, Qt::ShiftModifier);
        const QColor behind = groundAt(6);
        QCOMPARE(behind, m_host->ground());
    }

    void theWordsOfABlockAreMarked()
    {
        m_host->setText(u"IF a\r\nIF b\r\nENDIF\r\n|ELSE\r\nENDIF"_s);
        QCOMPARE(marked(), u"0:0 0:1 3:0 3:1 3:2 3:3 4:0 4:1 4:2 4:3 4:4"_s);
        m_host->key(Qt::Key_Up);
        QCOMPARE(marked(), u"1:0 1:1 2:0 2:1 2:2 2:3 2:4"_s);
    }

    void aBlockWithoutEndLooksWrong()
    {
        m_host->setText(u"|IF a\r\nELSE"_s);
        QVERIFY(isReddish(0));
        QVERIFY(!isReddish(box().document()->findBlockByNumber(1).position()));
    }

    void aCommentHasNone()
    {
        m_host->setText(u"REM |IF (a)\r\nENDIF"_s);
        QCOMPARE(marked(), QString());
        m_host->setText(u"REM IF |(a)"_s);
        QCOMPARE(marked(), QString());
    }

    void theBlockIsDrawnInTheMargin()
    {
        view().setLineNumbersVisible(true);
        m_host->setText(u"x\r\n|IF a\r\ny\r\nENDIF\r\nz"_s);
        const QImage shown = m_host->picture(m_host->margin());
        const auto isDrawn = [&](int line) {
            const QColor edge =
                shown.pixelColor(shown.width() - 2, m_host->placeOf(line).center().y() + 1);
            return contrast(edge, m_host->ground()) >= 2.9;
        };
        QVERIFY(!isDrawn(0));
        QVERIFY(isDrawn(1) && isDrawn(2) && isDrawn(3));
        QVERIFY(!isDrawn(4));
    }

    void theBlockLeavesTheSignForFoldingFree()
    {
        for (const int percent : {60, 100, 200}) {
            view().setZoom(percent);
            view().setFoldingEnabled(true);
            m_host->setText(u"|IF a\r\ny\r\nENDIF\r\nz"_s);
            view().setPairsShown(false);
            const QImage sign = m_host->picture(m_host->margin());
            view().setPairsShown(true);
            const QImage both = m_host->picture(m_host->margin());
            const QRect place = m_host->placeOf(0);
            int seen = 0;
            for (int y = place.top(); y <= place.bottom(); ++y) {
                for (int x = 0; x < sign.width() - 1; ++x) { // beside the edge
                    if (sign.pixel(x, y) == m_host->ground().rgb())
                        continue;
                    ++seen;
                    QCOMPARE(both.pixel(x, y), sign.pixel(x, y));
                }
            }
            QVERIFY(seen > 4);
            QVERIFY(both != sign);
        }
    }

    void otherUsesAreMarkedOnceTheCaretRests()
    {
        m_host->setText(u"Te|mp1 = 1\r\nx = temp1 + Temp12\r\nREM Temp1\r\n(TEMP1)"_s);
        QCOMPARE(marked(), QString());
        setRest(0);
        m_host->key(Qt::Key_Right);
        QTRY_COMPARE(marked(), u"1:4 1:5 1:6 1:7 1:8 3:1 3:2 3:3 3:4 3:5"_s);
        setRest(100'000);
        m_host->key(Qt::Key_Right); // still on the word
        QVERIFY(!marked().isEmpty());
        m_host->type(u"x"_s); // another word
        QCOMPARE(marked(), QString());
    }

    void numbersOperatorsAndBlockWordsHaveNoUses()
    {
        setRest(0);
        for (const QString &text : {u"|12 = 12"_s, u"x |= y = z"_s}) {
            m_host->setText(text);
            QTest::qWait(20);
            QCOMPARE(marked(), QString());
        }
    }

    void nothingStaysWhenSwitchedOff()
    {
        m_host->setText(u"|( Temp1 )\r\nTemp1"_s);
        view().setPairsShown(false);
        QCOMPARE(marked(), QString());
        m_host->key(Qt::Key_Right);
        QCOMPARE(marked(), QString());
    }

    // Far partners are looked for in portions, whatever the size of the program.
    void aFarPartnerIsFoundLater()
    {
        QStringList lines{u"IF a"_s};
        for (int i = 0; i < 30'000; ++i)
            lines << u"x = 1"_s;
        lines << u"ENDIF"_s;
        QTextDocument text(lines.join(u'\n'));
        BlockSearch search;
        QSignalSpy changed(&search, &BlockSearch::changed);
        search.start(text.firstBlock(), 0);
        QCOMPARE(search.places().size(), 1);
        QVERIFY(!search.isBroken());
        QTRY_COMPARE(search.places().size(), 2);
        QCOMPARE(search.lastLine(), 30'001);
        QCOMPARE(changed.count(), 1);
    }

    void aTextThatChangesMeanwhileDoesNoHarm()
    {
        QStringList lines{u"IF a"_s};
        for (int i = 0; i < 30'000; ++i)
            lines << u"x = 1"_s;
        m_host->list->setCodeText(lines.join(u"\r\n"_s));
        m_host->key(Qt::Key_Right);
        m_host->list->setCodeText(u"IF b\r\nENDIF"_s);
        QTest::qWait(50);
        QCOMPARE(marked(), u"0:0 0:1 1:0 1:1 1:2 1:3 1:4"_s);
    }

    void tellsOfAnotherValueOnly()
    {
        QSignalSpy changed(&view(), &CodeView::pairsShownChanged);
        view().setPairsShown(true);
        view().setPairsShown(false);
        QCOMPARE(changed.count(), 1);
    }
};

ORVT_TEST(PairMarksTest)
#include "PairMarksTest.moc"
