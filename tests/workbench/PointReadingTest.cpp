#include "WorkbenchTest.h"

#include "project/Project.h"
#include "project/ProjectColumns.h"
#include "project/ProjectDocument.h"
#include "project/controller/PointReading.h"
#include "project/controller/SimulatedController.h"
#include "support/TestProgram.h"

#include <chrono>
#include <memory>

using namespace ORVTListview;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

// Tells what a test says, and nothing by itself.
class ToldController : public Controller
{
public:
    void ask(quint64 question, const QList<AskedPoint> &points) override
    {
        ++questions;
        last = question;
        asked = points;
    }
    void cancel(quint64 question) override { cancelled = question; }

    AskedPoint point(const QString &name) const
    {
        for (const AskedPoint &each : asked) {
            if (each.name == name)
                return each;
        }
        return {};
    }
    void tell(const QString &name, const QVariant &value)
    {
        Q_EMIT answered(last, {{point(name), value}});
    }

    int questions = 0;
    quint64 last = 0;
    quint64 cancelled = 0;
    QList<AskedPoint> asked;
};

struct Readings
{
    Readings() { open(); }

    void open()
    {
        writeFile(folder.filePath(u"p.prog"_s), {});
        writeFile(folder.filePath(u"p.json"_s), R"({"format": 1, "name": "P", "program": "p.prog",
            "inputs": [{"name": "A", "value": 1}, {"name": "B", "value": "On"}, {"name": "C"}],
            "timers": [{"data": "x", "value": 5}, {"data": "y", "value": 6}],
            "inputParameters": [{"type": "volt"}]})");
        document.setProject(std::make_unique<Project>(folder.filePath(u"p.json"_s)));
    }
    QString value(LwType type, qsizetype row)
    {
        return cellText(document.project()->rows(type).at(row).cells.at(valueColumn(type)));
    }

    QTemporaryDir folder;
    ProjectDocument document{
        {[](qint32) { return QString(); }, [](qint32) { return qsizetype(0); }}};
    ToldController controller;
    PointReading reading{document, controller};
};

} // namespace

class PointReadingTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void onlyValuesCanBeRead()
    {
        Readings r;
        QVERIFY(r.reading.canRead(dsInput));
        QVERIFY(r.reading.canRead(dsCode));
        QVERIFY(!r.reading.canRead(dsInputParam)); // has no values
        QVERIFY(!r.reading.canRead(dsOutput));     // has no points
        r.reading.read(dsOutput);
        QCOMPARE(r.controller.questions, 0);
    }

    void answersGoToTheirPoints()
    {
        Readings r;
        r.reading.read(dsInput);
        QVERIFY(r.reading.isReading());
        QCOMPARE(r.controller.asked.size(), 3);
        r.controller.tell(u"B"_s, u"Off"_s);
        r.controller.tell(u"A"_s, 2.5);
        r.controller.tell(u"C"_s, 3.0);
        QCOMPARE(r.value(dsInput, 0), u"2.5"_s);
        QCOMPARE(r.value(dsInput, 1), u"Off"_s);
        Q_EMIT r.controller.ended(r.controller.last);
        QVERIFY(!r.reading.isReading());
        QCOMPARE(r.reading.fault(), QString());
        QVERIFY(!r.document.isModified());
    }

    void rowsThatMoveKeepTheirAnswers()
    {
        Readings r;
        r.reading.read(dsInput);
        const ProjectRow first = r.document.project()->rows(dsInput).at(0);
        r.document.carryOut(RowChanges{{dsInput, 0, first, {}}});
        r.controller.tell(u"A"_s, 9.0); // is gone
        r.controller.tell(u"C"_s, 8.0);
        QCOMPARE(r.value(dsInput, 0), u"On"_s);
        QCOMPARE(r.value(dsInput, 1), u"8"_s);
    }

    void aRenamedPointGetsNoAnswerOfAnother()
    {
        Readings r;
        r.reading.read(dsInput);
        r.document.carryOut(RowChanges{{dsInput, 0, r.document.project()->rows(dsInput).at(0),
                                        r.document.project()->renamed(dsInput, 0, u"Z"_s)}});
        r.controller.tell(u"A"_s, 9.0);
        QCOMPARE(r.value(dsInput, 0), u"1"_s);
    }

    void aRowWithoutANameIsKnownByWhatItHolds()
    {
        Readings r;
        r.reading.read(dsTimer);
        const ProjectRow first = r.document.project()->rows(dsTimer).at(0);
        r.document.carryOut(RowChanges{{dsTimer, 0, first, {}}});
        Q_EMIT r.controller.answered(r.controller.last, {{r.controller.asked.at(0), 7.0}});
        QCOMPARE(r.value(dsTimer, 0), u"6"_s);
    }

    void whatIsWrongIsToldAndNotTaken()
    {
        Readings r;
        r.reading.read(dsInput);
        r.controller.tell(u"A"_s, u"###"_s);
        QCOMPARE(r.value(dsInput, 0), u"1"_s);
        QVERIFY2(r.reading.fault().contains(u"A: \"###\""_s), qPrintable(r.reading.fault()));
        r.controller.tell(u"A"_s, QVariant(qQNaN()));
        QCOMPARE(r.value(dsInput, 0), u"1"_s);
        Q_EMIT r.controller.answered(r.controller.last, {{{dsInput, u"Ghost"_s, 0}, 1.0}});
        QVERIFY2(r.reading.fault().contains(u"2 more"_s), qPrintable(r.reading.fault()));
        r.controller.tell(u"B"_s, u"Off"_s);
        Q_EMIT r.controller.ended(r.controller.last);
        QCOMPARE(r.reading.answered(), 1);
        QVERIFY(r.reading.isOld({dsInput, u"A"_s, 0}));
        QVERIFY(!r.reading.isOld({dsInput, u"B"_s, 0}));
    }

    void missingValuesAreAFault()
    {
        Readings r;
        r.reading.read(dsInput);
        r.controller.tell(u"A"_s, 2.0);
        Q_EMIT r.controller.ended(r.controller.last);
        QCOMPARE(r.reading.fault(), u"Values are missing"_s);
        QCOMPARE(r.value(dsInput, 0), u"2"_s);
    }

    void aFailureLeavesWhatWasRead()
    {
        Readings r;
        r.reading.read(dsInput);
        r.controller.tell(u"A"_s, 2.0);
        Q_EMIT r.controller.failed(r.controller.last, u"Gone"_s);
        QVERIFY(!r.reading.isReading());
        QCOMPARE(r.reading.fault(), u"Gone"_s);
        QCOMPARE(r.value(dsInput, 0), u"2"_s);
        r.controller.tell(u"C"_s, 4.0); // too late
        Q_EMIT r.controller.ended(r.controller.last);
        QCOMPARE(r.value(dsInput, 2), QString());
    }

    void stoppingTakesNothingMore()
    {
        Readings r;
        r.reading.read(dsInput);
        r.reading.read(dsTimer); // waits
        r.reading.stop();
        QCOMPARE(r.controller.cancelled, r.controller.last);
        r.controller.tell(u"A"_s, 2.0);
        QCOMPARE(r.value(dsInput, 0), u"1"_s);
        QVERIFY(!r.reading.isReading());
        QCOMPARE(r.controller.questions, 1);
        QVERIFY(!r.reading.isOld({dsInput, u"A"_s, 0}));
    }

    void anotherProjectGetsNoAnswers()
    {
        Readings r;
        r.reading.read(dsInput);
        r.open();
        QVERIFY(!r.reading.isReading());
        r.controller.tell(u"A"_s, 2.0);
        QCOMPARE(r.value(dsInput, 0), u"1"_s);
        Q_EMIT r.controller.ended(r.controller.last);
        QVERIFY(!r.reading.isReading());
    }

    void oneQuestionAtATime()
    {
        Readings r;
        r.reading.read(dsInput);
        r.reading.read(dsInput); // is being read
        r.reading.read(dsTimer); // comes then
        QCOMPARE(r.controller.questions, 1);
        Q_EMIT r.controller.ended(r.controller.last);
        QCOMPARE(r.controller.questions, 2);
        QCOMPARE(r.controller.asked.constFirst().type, dsTimer);
        QVERIFY(r.reading.isReading());
        Q_EMIT r.controller.ended(r.controller.last);
        QCOMPARE(r.controller.questions, 2);
    }

    void theCycleReadsByItself()
    {
        Readings r;
        r.reading.setPause(1ms);
        QTRY_COMPARE(r.controller.questions, 1);
        QVERIFY(!r.reading.isReading()); // nobody has asked for it
        QCOMPARE(r.controller.asked.size(), 5);
        r.reading.read(dsInput); // which is being read: not twice
        QVERIFY(r.reading.isReading());
        QCOMPARE(r.controller.questions, 1);
        Q_EMIT r.controller.failed(r.controller.last, u"Gone"_s);
        QTRY_COMPARE(r.controller.questions, 2); // it goes on
        Q_EMIT r.controller.ended(r.controller.last);
        r.reading.setPause(0ms);
        QTest::qWait(20);
        QCOMPARE(r.controller.questions, 2);
    }

    void aControllerMayGo()
    {
        Readings r;
        auto controller = std::make_unique<ToldController>();
        PointReading reading(r.document, *controller);
        reading.read(dsInput);
        controller.reset();
        QVERIFY(!reading.isReading());
        QVERIFY(!reading.fault().isEmpty());
        reading.read(dsInput);
        QVERIFY(!reading.isReading());
    }

    void aReadingSurvivesUndo()
    {
        Readings r;
        const ProjectRow before = r.document.project()->rows(dsInput).at(0);
        ProjectRow after = before;
        after.setCell(4, u"described"_s);
        r.document.carryOut(RowChanges{{dsInput, 0, before, after}});
        r.reading.read(dsInput);
        r.controller.tell(u"A"_s, 2.0);
        r.document.go(ProjectDocument::Way::Back);
        QCOMPARE(r.value(dsInput, 0), u"2"_s);
        QVERIFY(!r.document.isModified());
    }

    void theSimulationFailsAsItIsTold_data()
    {
        QTest::addColumn<int>("failure");
        QTest::addColumn<int>("mistake");
        QTest::addColumn<QString>("fault");
        QTest::addColumn<int>("answered");
        using S = SimulatedBehaviour;
        QTest::newRow("fine") << int(S::Answers) << int(S::NoMistake) << QString() << 8;
        QTest::newRow("away") << int(S::CannotBeReached) << 0 << u"reached"_s << 0;
        QTest::newRow("refuses") << int(S::Refuses) << 0 << u"refuses"_s << 0;
        QTest::newRow("breaks") << int(S::Breaks) << 0 << u"stopped"_s << 4;
        QTest::newRow("text") << 0 << int(S::TextForNumber) << u"not a number"_s << 4;
        QTest::newRow("few") << 0 << int(S::TooFew) << u"missing"_s << 4;
        QTest::newRow("unknown") << 0 << int(S::UnknownPoint) << u"not asked"_s << 8;
    }

    void theSimulationFailsAsItIsTold()
    {
        QFETCH(int, failure);
        QFETCH(int, mistake);
        QFETCH(QString, fault);
        QFETCH(int, answered);
        Readings r;
        RowChanges more;
        for (int i = 0; i < 8; ++i) {
            ProjectRow row;
            row.name = u"V%1"_s.arg(i);
            row.cells = {row.name, {}, 10.0, {}, {}};
            more.append({dsVariable, i, {}, row});
        }
        r.document.carryOut(more);
        PointReading *reader = nullptr;
        SimulatedController controller(
            [&](const AskedPoint &point) { return reader->valueOf(point); });
        controller.setBehaviour(
            {1, SimulatedBehaviour::Failure(failure), SimulatedBehaviour::Mistake(mistake)});
        PointReading reading(r.document, controller);
        reader = &reading;
        reading.read(dsVariable);
        QTRY_VERIFY(!reading.isReading());
        QVERIFY2(fault.isEmpty() ? reading.fault().isEmpty() : reading.fault().contains(fault),
                 qPrintable(reading.fault()));
        QCOMPARE(reading.answered(), answered);
    }

    // As those that were just added have none.
    void theSimulationKnowsPointsWithoutAValue()
    {
        Readings r;
        PointReading *reader = nullptr;
        SimulatedController controller(
            [&](const AskedPoint &point) { return reader->valueOf(point); });
        controller.setBehaviour({1, SimulatedBehaviour::Answers, SimulatedBehaviour::NoMistake});
        PointReading reading(r.document, controller);
        reader = &reading;
        reading.readAll();
        QTRY_VERIFY(!reading.isReading());
        QCOMPARE(reading.fault(), QString());
        QVERIFY(!r.value(dsInput, 2).isEmpty());
    }
};

ORVT_TEST(PointReadingTest)
#include "PointReadingTest.moc"
