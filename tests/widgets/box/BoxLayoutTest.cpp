#include "base/ColouredText.h"
#include "support/MemoryInUse.h"
#include "support/RandomSeed.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include <ORVTListview/RichTextBox.h>

#include <QtGui/QPaintEvent>
#include <QtGui/QTextBlock>
#include <QtGui/QTextOption>
#include <QtWidgets/QApplication>
#include <QtWidgets/QScrollBar>

#include <random>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// Notes which part of itself the toolkit paints again.
class WatchedBox final : public RichTextBox
{
public:
    QRegion takePainted() { return std::exchange(m_painted, {}); }

    QImage picture()
    {
        const QRegion painted = m_painted;
        const QImage image = viewport()->grab().toImage();
        m_painted = painted;
        return image;
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        m_painted += event->region();
        RichTextBox::paintEvent(event);
    }

private:
    QRegion m_painted;
};

// A place outside the region where the pictures, which may have several pixels for one
// of the region's, differ, or a null point.
QPoint missed(const QImage &before, const QImage &behind, const QRegion &painted)
{
    const qreal scale = before.devicePixelRatio();
    const auto isPainted = [&](int x, int y) {
        return painted.contains(QPoint(static_cast<int>(x / scale), static_cast<int>(y / scale)));
    };
    for (int y = 0; y < before.height(); ++y) {
        for (int x = 0; x < before.width(); ++x) {
            if (before.pixel(x, y) != behind.pixel(x, y) && !isPainted(x, y))
                return {x + 1, y + 1};
        }
    }
    return {};
}

QPoint scrollPosition(const RichTextBox &box)
{
    return {box.horizontalScrollBar()->value(), box.verticalScrollBar()->value()};
}

QString manyLines(int count)
{
    QString text;
    for (int i = 0; i < count; ++i)
        text += u"IF temp%1 >= 20\r\n"_s.arg(i);
    return text;
}

} // namespace

class BoxLayoutTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setCursorFlashTime(0); }

    void everyChangeIsPainted_data();
    void everyChangeIsPainted();
    void aSelectionIsPaintedWhenScrolledSideways();
    void aColourChangeRepaintsItsLineOnly();
    void aTypedLetterRepaintsItsLineOnly();
    void theScrollRangeFollowsTheLongestLine();
    void theScrollRangeFollowsTheLines();
    void aLineSeparatorMakesALineTaller();
    void anotherFontLaysEverythingOutAgain();
    void linesOutOfSightHaveNoLayout();
    void anotherWidthAlignsTheLinesAgain();
    void theScrollRangeFollowsTheWidth();

private:
    void act(RichTextBox &box);
    unsigned below(unsigned limit) { return static_cast<unsigned>(m_random() % limit); }
    QPoint changed(WatchedBox &box, const std::function<void()> &change);

    std::mt19937 m_random;
};

// Does the change and returns a place that should have been painted and was not.
QPoint BoxLayoutTest::changed(WatchedBox &box, const std::function<void()> &change)
{
    QCoreApplication::processEvents();
    const QImage before = box.picture();
    const QPoint scrolled = scrollPosition(box);
    box.takePainted();
    change();
    QCoreApplication::processEvents();
    const QRegion painted = box.takePainted();
    if (scrollPosition(box) != scrolled)
        return {}; // the toolkit moved what was painted
    return missed(before, box.picture(), painted);
}

void BoxLayoutTest::act(RichTextBox &box)
{
    static const QStringList pieces{u"x"_s,        u"if temp"_s,  u"\r\n"_s, u"a\r\nb\r\nc"_s,
                                    u"\r\n\r\n"_s, u"a\u2028b"_s, QString()};
    const auto place = qint32(below(160));
    switch (below(9)) {
    case 0:
        box.setSelStart(place);
        box.setSelLength(qint32(below(40)));
        break;
    case 1:
        box.setSelText(pieces.at(qsizetype(below(unsigned(pieces.size())))));
        break;
    case 2:
        QTest::keyClick(&box, Qt::Key_Backspace);
        break;
    case 3:
        QTest::keyClick(&box, Qt::Key_Delete);
        break;
    case 4:
        QTest::keyClick(&box, Qt::Key_Return);
        break;
    case 5: {
        const ColouredText shown = box.coloured(place, qint32(below(60)));
        const qsizetype half = shown.text.size() / 2;
        box.recolour(place, {shown.text, {{half, qint32(below(0xffffff))}, {half + 1, 0xff}}});
        break;
    }
    case 6:
        box.setSelColor(qint32(below(0xffffff)));
        break;
    case 7:
        box.setSelColoured({u"one\r\ntwo"_s, {{2, 0xff}, {6, 0xff0000}}});
        break;
    default:
        QTest::keyClicks(&box, u"word "_s);
    }
}

void BoxLayoutTest::everyChangeIsPainted_data()
{
    QTest::addColumn<unsigned>("seed");
    for (const unsigned seed : randomSeeds(6))
        QTest::addRow("seed %u", seed) << seed;
}

void BoxLayoutTest::everyChangeIsPainted()
{
    QFETCH(unsigned, seed);
    m_random.seed(seed);
    WatchedBox box;
    box.resize(160, 130);
    box.setText(manyLines(6));
    box.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // the viewport keeps its size
    box.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    for (int step = 0; step < 200; ++step) {
        const QPoint place = changed(box, [&] { act(box); });
        QVERIFY2(place.isNull(),
                 qPrintable(u"seed %1, step %2, %3 %4"_s.arg(seed).arg(step).arg(place.x()).arg(
                     place.y())));
    }
}

void BoxLayoutTest::aSelectionIsPaintedWhenScrolledSideways()
{
    WatchedBox box;
    box.resize(160, 130);
    box.setText(QString(40, u'x') + u"\r\n"_s + QString(40, u'x') + u"\r\nx"_s);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    box.setSelStart(30);
    const int scrolled = box.horizontalScrollBar()->value();
    QVERIFY(scrolled > 0);
    QCOMPARE(changed(box, [&] { box.setSelLength(50); }), QPoint());
    QCOMPARE(box.horizontalScrollBar()->value(), scrolled);
}

void BoxLayoutTest::aColourChangeRepaintsItsLineOnly()
{
    WatchedBox box;
    box.resize(300, 300);
    box.setText(manyLines(30));
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    QCoreApplication::processEvents();
    box.takePainted();
    const QString line = box.lineText(3);
    box.recolour(box.lineStart(3), {line, {{line.size(), 0xff}}});
    QCoreApplication::processEvents();
    const QRect painted = box.takePainted().boundingRect();
    const int height = box.fontMetrics().lineSpacing();
    QVERIFY(painted.isValid());
    QVERIFY2(painted.height() <= height + 4, qPrintable(QString::number(painted.height())));
}

void BoxLayoutTest::aTypedLetterRepaintsItsLineOnly()
{
    WatchedBox box;
    box.resize(300, 300);
    box.setText(manyLines(30));
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    box.setSelStart(box.lineStart(3) + 5);
    QCoreApplication::processEvents();
    box.takePainted();
    QTest::keyClick(&box, 'x');
    QTest::keyClick(&box, Qt::Key_Backspace);
    QCoreApplication::processEvents();
    const int height = box.fontMetrics().lineSpacing();
    QVERIFY(box.takePainted().boundingRect().height() <= height + 4);
}

void BoxLayoutTest::theScrollRangeFollowsTheLongestLine()
{
    RichTextBox box;
    box.resize(200, 200);
    box.setText(u"short\r\n"_s + QString(100, u'x') + u"\r\n"_s + QString(200, u'x'));
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    const QScrollBar &bar = *box.horizontalScrollBar();
    const int both = bar.maximum();
    QVERIFY(both > 0);
    box.setSelStart(box.lineStart(2));
    box.setSelLength(200);
    box.setSelText({});
    const int one = bar.maximum();
    QVERIFY(one > 0 && one < both);
    box.setSelStart(box.lineStart(1));
    box.setSelLength(100);
    box.setSelText({});
    QCOMPARE(bar.maximum(), 0);
    box.setSelText(QString(100, u'x'));
    QCOMPARE(bar.maximum(), one);
    box.setSelStart(0);
    box.setSelLength(box.TextLength());
    box.setSelText({});
    QCOMPARE(bar.maximum(), 0);
    box.setSelText(QString(100, u'x'));
    QCOMPARE(bar.maximum(), one);
    box.setText(u"short"_s);
    QCOMPARE(bar.maximum(), 0);
}

void BoxLayoutTest::theScrollRangeFollowsTheLines()
{
    RichTextBox box;
    box.resize(200, 100);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    const QScrollBar &bar = *box.verticalScrollBar();
    QCOMPARE(bar.maximum(), 0);
    box.setText(manyLines(100));
    const int whole = bar.maximum();
    QVERIFY(whole > 80);
    box.setSelText(u"\r\n"_s);
    QCOMPARE(bar.maximum(), whole + 1);
    QTest::keyClick(&box, Qt::Key_Backspace);
    QCOMPARE(bar.maximum(), whole);
    box.setSelLength(box.lineStart(50));
    box.setSelText({});
    QCOMPARE(bar.maximum(), whole - 50);
    box.setText({});
    QCOMPARE(bar.maximum(), 0);
}

void BoxLayoutTest::aLineSeparatorMakesALineTaller()
{
    RichTextBox box;
    box.resize(200, 200);
    box.setText(u"ab\r\ncd"_s);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    const auto topOf = [&box](qint32 position) {
        box.setSelStart(position);
        return box.cursorRect().top();
    };
    const int second = topOf(4);
    const int height = second - topOf(0);
    box.setSelStart(1);
    box.setSelText(u"\u2028"_s);
    QCOMPARE(topOf(2), second);
    QCOMPARE(topOf(5), second + height);
    QCOMPARE(box.GetLineFromChar(2), 0);
}

void BoxLayoutTest::anotherFontLaysEverythingOutAgain()
{
    RichTextBox box;
    box.resize(200, 200);
    box.setText(manyLines(20));
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    const int width = box.horizontalScrollBar()->maximum();
    box.setFontSize(box.FontSize() * 4);
    QCoreApplication::processEvents();
    QVERIFY(box.horizontalScrollBar()->maximum() > width + 100);
    box.setSelStart(box.lineStart(1));
    QVERIFY(box.cursorRect().height() >= box.fontMetrics().height());
}

// The toolkit takes some 130 bytes for a line itself, and 300 for a layout of it.
void BoxLayoutTest::linesOutOfSightHaveNoLayout()
{
    const int count = 50'000;
    RichTextBox box;
    box.resize(300, 200);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    const qint64 before = memoryInUse();
    box.setText(QString(count, u'\n'));
    QCOMPARE(box.lineCount(), count + 1);
    for (const int width : {500, 200, 300}) {
        box.resize(width, 200);
        QCoreApplication::processEvents();
    }
    QCOMPARE_LT(memoryInUse() - before, qint64{count} * 200);
}

void BoxLayoutTest::anotherWidthAlignsTheLinesAgain()
{
    RichTextBox box;
    QTextOption option = box.document()->defaultTextOption();
    option.setAlignment(Qt::AlignRight);
    box.document()->setDefaultTextOption(option);
    box.resize(300, 200);
    box.setText(u"abc"_s);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    const int left = box.cursorRect().left();
    QVERIFY2(left > 200, qPrintable(QString::number(left)));
    for (const int width : {500, 200, 300}) {
        box.resize(width, 200);
        QCOMPARE(box.cursorRect().left(), left + width - 300);
    }
}

void BoxLayoutTest::theScrollRangeFollowsTheWidth()
{
    RichTextBox box;
    box.resize(300, 200);
    box.setText(QString(200, u'x') + u"\r\nshort"_s);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    const QScrollBar &bar = *box.horizontalScrollBar();
    const int range = bar.maximum();
    QVERIFY(range > 0);
    for (const int width : {400, 200, 300}) {
        box.resize(width, 200);
        QCOMPARE(bar.maximum(), range + 300 - width);
    }
    box.setText(u"short"_s);
    for (const int width : {400, 200, 300}) {
        box.resize(width, 200);
        QCOMPARE(bar.maximum(), 0);
    }
}

ORVT_TEST(BoxLayoutTest)
#include "BoxLayoutTest.moc"
