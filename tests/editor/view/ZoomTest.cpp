// The size that the text is shown in, indent guides, and marks for blanks.

#include "editor/view/ViewFixture.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtGui/QWheelEvent>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class ZoomTest : public WidgetTest
{
    Q_OBJECT

private:
    std::unique_ptr<ViewHost> m_host;

    RichTextBox &box() { return m_host->box(); }
    CodeView &view() { return m_host->view(); }
    int lineHeight() { return m_host->placeOf(1).top() - m_host->placeOf(0).top(); }

    void wheel(int delta, Qt::KeyboardModifiers modifiers = Qt::ControlModifier)
    {
        QWidget &text = *box().viewport();
        QWheelEvent event(QPointF(30, 30), text.mapToGlobal(QPointF(30, 30)), {}, {0, delta}, {},
                          modifiers, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&text, &event);
    }
    // Whether anything but the ground is painted in a column of a line.
    bool isPainted(int line, int x)
    {
        const QImage shown = m_host->picture(*box().viewport());
        const QRect place = m_host->placeOf(line);
        for (int y = place.top() + 1; y < place.bottom(); ++y) {
            if (shown.pixelColor(x, y) != m_host->ground())
                return true;
        }
        return false;
    }
    int left(int line, int offset)
    {
        QTextCursor cursor(box().document()->findBlockByNumber(line));
        cursor.setPosition(cursor.position() + offset);
        return box().cursorRect(cursor).left();
    }

private Q_SLOTS:
    void init() override
    {
        WidgetTest::init();
        QApplication::setCursorFlashTime(0);
        m_host = std::make_unique<ViewHost>();
        m_host->list->openProgram(u"x = 1\r\nIF a\r\n        b\tc\r\n\r\n        d\r\nENDIF"_s);
        m_host->after->setFocus(); // no caret
    }
    void cleanup() override
    {
        m_host.reset();
        WidgetTest::cleanup();
    }

    void showsTheTextLarger()
    {
        const int before = lineHeight();
        view().setZoom(200);
        QVERIFY(std::abs(lineHeight() - 2 * before) <= 3);
        view().setZoom(0);
        QCOMPARE(lineHeight(), before);
    }

    void keepsTheFontAndTheRtf()
    {
        const QString rtf = m_host->list->CodeTextRTF();
        QSignalSpy changed(&box(), &RichTextBox::Change);
        view().setZoom(200);
        QCoreApplication::processEvents();
        QCOMPARE(changed.count(), 0);
        QCOMPARE(box().FontSize(), 10.F);
        QCOMPARE(m_host->list->CodeTextRTF(), rtf);
    }

    void staysOverAnotherFontAndAnotherText()
    {
        view().setZoom(200);
        m_host->settings.FontSize = 12;
        m_host->list->Init_RichTextBox(m_host->settings);
        const int large = lineHeight();
        QCOMPARE(box().FontSize(), 12.F);
        m_host->list->openProgram(u"a\r\nb"_s);
        QCOMPARE(lineHeight(), large);
        view().setZoom(100);
        QVERIFY(std::abs(large - 2 * lineHeight()) <= 3);
    }

    void takesMarginAndTabsAlong()
    {
        view().setLineNumbersVisible(true);
        const int margin = m_host->margin().width();
        const qreal tab = box().tabStopDistance();
        view().setZoom(200);
        QVERIFY(m_host->margin().width() > margin + margin / 2);
        QVERIFY(std::abs(box().tabStopDistance() - 2 * tab) < 1);
        m_host->list->setIndentUnit(u"  "_s);
        QVERIFY(std::abs(box().tabStopDistance() - tab) < 1);
    }

    void staysInItsRange()
    {
        for (const auto &[given, taken] : {std::pair(1, 20), {501, 500}, {150, 150}, {-5, 0}}) {
            view().setZoom(given);
            QCOMPARE(view().zoom(), taken);
        }
    }

    void theWheelChangesItWhileItIsOn()
    {
        m_host->setLines(300);
        wheel(-120);
        QCOMPARE(view().zoom(), 0);
        QVERIFY(box().verticalScrollBar()->value() > 0); // as of old
        QSignalSpy changed(&view(), &CodeView::zoomChanged);
        view().setZoom(100);
        const int top = box().verticalScrollBar()->value();
        wheel(120);
        QCOMPARE(view().zoom(), 110);
        wheel(-60);
        QCOMPARE(view().zoom(), 110);
        wheel(-60);
        QCOMPARE(view().zoom(), 100);
        QCOMPARE(box().verticalScrollBar()->value(), top);
        QCOMPARE(changed.count(), 3);
        wheel(-120, {});
        QCOMPARE(view().zoom(), 100);
        QVERIFY(box().verticalScrollBar()->value() > top);
    }

    void guidesStandAtTheTabStops()
    {
        const int stop = left(2, 4);
        QVERIFY(!isPainted(2, stop));
        view().setIndentGuidesShown(true);
        QVERIFY(isPainted(2, stop));
        QVERIFY(isPainted(3, stop)); // a blank line between
        QVERIFY(!isPainted(2, left(2, 2)));
        QVERIFY(!isPainted(0, left(0, 3)));
        view().setIndentGuidesShown(false);
        QVERIFY(!isPainted(2, stop));
    }

    void blanksAndTabsAreMarked()
    {
        const int blank = (left(2, 0) + left(2, 1)) / 2;
        const int tab = (left(2, 9) + left(2, 10)) / 2;
        QVERIFY(!isPainted(2, blank));
        QVERIFY(!isPainted(2, tab));
        view().setBlanksShown(true);
        QVERIFY(isPainted(2, blank));
        QVERIFY(isPainted(2, tab));
        QVERIFY(!isPainted(3, blank)); // nothing stands there
        view().setBlanksShown(false);
        QVERIFY(!isPainted(2, blank));
    }

    void tellOfAnotherValueOnly()
    {
        QSignalSpy guides(&view(), &CodeView::indentGuidesShownChanged);
        QSignalSpy blanks(&view(), &CodeView::blanksShownChanged);
        for (const bool on : {false, true, true, false}) {
            view().setIndentGuidesShown(on);
            view().setBlanksShown(on);
        }
        QCOMPARE(guides.count(), 2);
        QCOMPARE(blanks.count(), 2);
    }
};

ORVT_TEST(ZoomTest)
#include "ZoomTest.moc"
