// Whether colouring a text once more would change it: found out in slices, and not again
// while the lines are there that it would change.

#include "editor/ColouredSource.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// Adds a sign to each line that has one already, and counts what it was given.
struct Colouring
{
    qsizetype coloured = 0;

    ColouredSource::Colour colour()
    {
        return [this](const QString &lines) {
            coloured += lines.size();
            QString text = lines;
            text.replace(u"!"_s, u"!!"_s);
            return ColouredText{text, {{text.size(), ColouredText::automatic}}};
        };
    }
    void checkAll(ColouredSource &source)
    {
        coloured = 0;
        while (source.check(colour())) {
        }
    }
};

QStringList plainLines()
{
    return QString(u"temp1 = 1\r\n"_s.repeated(20000)).split(u"\r\n"_s);
}

SharedText joined(const QStringList &lines)
{
    return SharedText(lines.join(u"\r\n"_s));
}

} // namespace

class ColouredSourceTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void isFixedOnceAllOfItIsChecked()
    {
        Colouring colouring;
        ColouredSource source;
        source.set(joined(plainLines()));
        QVERIFY(!source.isFixed());
        QVERIFY(source.check(colouring.colour()));
        QVERIFY(!source.isFixed());
        colouring.checkAll(source);
        QVERIFY(source.isFixed());
    }

    void whatWouldChangeIsNotLookedForAgain_data()
    {
        QTest::addColumn<int>("where");
        QTest::newRow("behind what changes") << 15000;
        QTest::newRow("before it") << 5000;
    }
    void whatWouldChangeIsNotLookedForAgain()
    {
        QFETCH(const int, where);
        Colouring colouring;
        ColouredSource source;
        QStringList lines = plainLines();
        lines[where] = u"temp1!"_s;
        source.set(joined(lines));
        colouring.checkAll(source);
        QVERIFY(!source.isFixed());
        for (int step = 0; step < 3; ++step) {
            lines[10000] += u" x"_s;
            lines.insert(10000, u"more"_s);
            source.become(joined(lines), true);
            colouring.checkAll(source);
            QVERIFY(!source.isFixed());
            QCOMPARE(colouring.coloured, 0);
        }
    }

    void norIsALineThatIsTooLongToBeLookedAt()
    {
        Colouring colouring;
        ColouredSource source;
        QStringList lines = plainLines();
        lines[5000] = u"temp1 "_s.repeated(30000);
        source.set(joined(lines));
        colouring.checkAll(source);
        QVERIFY(!source.isFixed());
        for (int step = 0; step < 3; ++step) {
            lines[10000] += u" x"_s;
            source.become(joined(lines), true);
            colouring.checkAll(source);
            QCOMPARE(colouring.coloured, 0);
        }
        lines[5000] = u"temp1"_s;
        source.become(joined(lines), true);
        colouring.checkAll(source);
        QVERIFY(source.isFixed());
    }

    void itIsLookedForOnceItHasGone()
    {
        Colouring colouring;
        ColouredSource source;
        QStringList lines = plainLines();
        lines[15000] = u"temp1!"_s;
        source.set(joined(lines));
        colouring.checkAll(source);
        lines[15000] = u"temp1"_s;
        source.become(joined(lines), true);
        colouring.checkAll(source);
        QVERIFY(source.isFixed());
    }

    // The same letters in the midst of a line are others.
    void onlyAWholeLineCounts()
    {
        Colouring colouring;
        ColouredSource source;
        QStringList lines = plainLines();
        lines[15000] = u"temp1!"_s;
        source.set(joined(lines));
        colouring.checkAll(source);
        lines[15000] = u"x temp1!"_s;
        source.become(joined(lines), true);
        colouring.checkAll(source);
        QVERIFY(colouring.coloured > 0);
    }
};

ORVT_TEST(ColouredSourceTest)
#include "ColouredSourceTest.moc"
