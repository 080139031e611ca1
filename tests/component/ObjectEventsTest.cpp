// Events of what calls hand out, by their numbers.

#include "ObjectCalls.h"

#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include <ORVTListview/CodeView.h>
#include <ORVTListview/ListGrid.h>
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ORVListView.h>
#include <ORVTListview/ReportList.h>

using namespace ORVTListview;
using namespace ObjectCalls;
using namespace Qt::StringLiterals;

namespace {

struct Heard : EventSink
{
    void Invoke(qint32 Number, QVariantList &Arguments) override
    {
        numbers.append(Number);
        last = Arguments;
    }

    QList<qint32> numbers;
    QVariantList last;
};

} // namespace

class ObjectEventsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void deliverEventsOfObjects();
    void letAnObjectGoWithItsSink();
};

void ObjectEventsTest::deliverEventsOfObjects()
{
    ORVListView control;
    const QVariant grid = QVariant::fromValue(control.listView()->grid());
    control.listView()->grid()->useReadyRules();
    control.listView()->grid()->setEditsCells(true);
    Heard heard;
    QVERIFY(advise(grid, &heard));
    QVERIFY(advise(grid, &heard)); // keeps its place
    const QVariant row = call(QVariant::fromValue(&control), u"GetFirstVisible"_s);
    QVERIFY(call(grid, u"enterText"_s, {row, 1, u"SupplyTemp"_s}).toBool());
    QCOMPARE(heard.numbers, QList<qint32>({6, 7})); // cellEntering, cellsChanged
    const QVariantMap change = heard.last.at(0).toList().at(0).toMap();
    QCOMPARE(change.value(u"text"_s).toString(), u"SupplyTemp"_s);
    QCOMPARE(change.value(u"item"_s), row);
    unadvise(grid, &heard);
    call(grid, u"enterText"_s, {row, 1, u"OutsideTemp"_s});
    QCOMPARE(heard.numbers.size(), 2);
    QVERIFY(!advise(row, &heard));
    QVERIFY(!advise(QVariant(), &heard));
}

void ObjectEventsTest::letAnObjectGoWithItsSink()
{
    auto control = std::make_unique<ORVListView>();
    const QVariant view = QVariant::fromValue(control->codeView());
    auto heard = std::make_unique<Heard>();
    QVERIFY(advise(view, heard.get()));
    heard.reset();
    control->setListviewType(dsCode);
    call(view, u"openProgram"_s, {u"A = 1"_s});
    Heard second;
    QVERIFY(advise(view, &second));
    call(view, u"setProblems"_s, {QVariantList{QVariantMap{{u"line"_s, 1}}}});
    QVERIFY(call(view, u"nextProblem"_s).toBool());
    QVERIFY(second.numbers.contains(3));
    control.reset();
}

ORVT_TEST(ObjectEventsTest)
#include "ObjectEventsTest.moc"
