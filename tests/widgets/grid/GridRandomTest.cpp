// A grid is a plain table through whatever its user and its host do.

#include "support/RandomSeed.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/grid/TwoTables.h"

#include <QtTest/QtTest>

using namespace Qt::StringLiterals;

class GridRandomTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void isAPlainTableThroughRandomSteps()
    {
        const unsigned seed = randomSeed();
        TwoTables tables(seed);
        const int steps = randomSteps(50'000);
        for (int step = 0; step < steps; ++step) {
            tables.step();
            QVERIFY2(tables.shown() == tables.expected(),
                     qPrintable(u"step %1 (%2):\n%3\ninstead of\n%4"_s.arg(step).arg(
                         tables.lastDeeds(), tables.shown(), tables.expected())));
        }
    }
};

ORVT_TEST(GridRandomTest)
#include "GridRandomTest.moc"
