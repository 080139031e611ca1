// Letters that are higher than their row: what of them stands in other rows is painted, also
// where their own row is out of view, and goes with them.

#include "support/TestProgram.h"
#include "widgets/box/ShownBoxTest.h"

#include "widgets/box/BoxLayers.h"

#include <QtCore/QRandomGenerator>
#include <QtGui/QBackingStore>
#include <QtWidgets/QApplication>
#include <QtWidgets/QScrollBar>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// Marks above it and below it.
QString tallLetter()
{
    return u"g"_s + u"\u0302"_s.repeated(4) + u"\u0323"_s.repeated(4);
}

} // namespace

class TallLettersTest : public ShownBoxTest
{
    Q_OBJECT

    QImage view() { return m_box->viewport()->grab().toImage(); }
    int rowHeight() { return m_box->cursorRect().height(); }
    int inPixels(int length) { return qRound(length * m_box->devicePixelRatioF()); }

    QImage rowOf(const QImage &picture, int row)
    {
        const int top = m_box->cursorRect().top() + row * rowHeight();
        return picture.copy(0, inPixels(top), picture.width(), inPixels(rowHeight()));
    }
    bool hasInk(const QImage &row)
    {
        const QRgb ground = m_box->palette().color(QPalette::Base).rgb();
        for (int y = 0; y < row.height(); ++y) {
            for (int x = inPixels(20); x < row.width(); ++x) { // the caret stands before
                if (row.pixel(x, y) != ground)
                    return true;
            }
        }
        return false;
    }
    void compareScreen()
    {
        QCoreApplication::processEvents();
        const auto &shown = dynamic_cast<const QImage &>(*m_box->backingStore()->paintDevice());
        const QImage anew = m_box->grab().toImage().convertToFormat(shown.format());
        QCOMPARE(shown.copy(anew.rect()), anew);
    }
    void choose(bool byColours)
    {
        if (byColours)
            BoxLayers::of(*m_box).setTextColours(
                [](const QColor &text, const QColor &) { return text; });
    }
    void addWays()
    {
        QTest::addColumn<bool>("byColours");
        QTest::newRow("by the toolkit") << false;
        QTest::newRow("in chosen colours") << true;
    }

private Q_SLOTS:
    void initTestCase() { QApplication::setCursorFlashTime(0); }

    void aLineAboveTheViewReachesIntoIt_data() { addWays(); }
    void aLineAboveTheViewReachesIntoIt()
    {
        QFETCH(const bool, byColours);
        choose(byColours);
        const QString before = u"      "_s;
        m_box->setText(before + tallLetter() + u"\r\n"_s.repeated(60));
        const QImage blank = rowOf(view(), 1);
        QVERIFY(hasInk(blank));
        m_box->verticalScrollBar()->setValue(1);
        QVERIFY(hasInk(view().copy(0, 0, blank.width(), blank.height())));
        compareScreen();
    }

    void aLineBelowTheViewReachesIntoIt_data() { addWays(); }
    void aLineBelowTheViewReachesIntoIt()
    {
        QFETCH(const bool, byColours);
        choose(byColours);
        const int margin = m_box->cursorRect().top();
        m_box->resize(m_box->width(),
                      m_box->height() - m_box->viewport()->height() + margin + rowHeight() * 5);
        m_box->setText(u"\r\n"_s.repeated(5) + u"      "_s + tallLetter() + u"\r\n"_s.repeated(60));
        QCoreApplication::processEvents();
        QVERIFY(hasInk(rowOf(view(), 4)));
        compareScreen();
    }

    void nothingStaysBehindWhereOneIsTypedAway_data() { addWays(); }
    void nothingStaysBehindWhereOneIsTypedAway()
    {
        QFETCH(const bool, byColours);
        choose(byColours);
        m_box->setText(QStringList(40, tallLetter().repeated(3)).join(u"\r\n"_s));
        for (int line : {0, 3, 4}) {
            m_box->setSelStart(m_box->lineStart(line));
            QTest::keyClick(m_box, Qt::Key_X);
            compareScreen();
            QTest::keyClick(m_box, Qt::Key_Delete);
            compareScreen();
            QTest::keyClick(m_box, Qt::Key_Z);
            compareScreen();
        }
    }

    void scrollingLeavesWhatPaintingAnewShows_data() { addWays(); }
    void scrollingLeavesWhatPaintingAnewShows()
    {
        QFETCH(const bool, byColours);
        choose(byColours);
        QStringList lines;
        for (int i = 0; i < 60; ++i)
            lines << (i % 3 == 0 ? tallLetter() + u" Ấ"_s : i % 3 == 1 ? u""_s : u"ΩЖg|"_s);
        m_box->setText(lines.join(u"\r\n"_s));
        QRandomGenerator random(5);
        QScrollBar &bar = *m_box->verticalScrollBar();
        for (int step = 0; step < 60; ++step) {
            if (random.bounded(2) == 0)
                bar.setValue(bar.value() + random.bounded(-2, 3));
            else
                bar.setValue(random.bounded(bar.maximum() + 1));
            compareScreen();
        }
    }
};

ORVT_TEST(TallLettersTest)
#include "TallLettersTest.moc"
