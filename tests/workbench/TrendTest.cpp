#include "WorkbenchTest.h"

#include "grid/rules/CellTexts.h"
#include "project/Project.h"
#include "project/ProjectDocument.h"
#include "project/controller/PointReading.h"
#include "support/TestProgram.h"
#include "workbench/trend/Trend.h"
#include "workbench/trend/TrendExport.h"
#include "workbench/trend/TrendPainter.h"
#include "workbench/trend/TrendScale.h"
#include "workbench/trend/TrendStyle.h"
#include "workbench/trend/TrendView.h"

#include <QtCore/QSet>

#include <cmath>
#include <memory>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

class ToldController : public Controller
{
public:
    void ask(quint64 question, const QList<AskedPoint> &) override { last = question; }
    void cancel(quint64) override {}
    quint64 last = 0;
};

// One trend of two inputs and a state, read as a test says.
struct Drawn
{
    Drawn()
    {
        writeFile(folder.filePath(u"p.prog"_s), {});
        writeFile(folder.filePath(u"p.json"_s), R"({"format": 1, "name": "P", "program": "p.prog",
            "inputs": [{"name": "A", "value": 1, "units": "°C"},
                       {"name": "B", "value": 2, "units": "°C"},
                       {"name": "S", "value": "On"}],
            "inputParameters": [{"type": "volt"}]})");
        document.setProject(std::make_unique<Project>(folder.filePath(u"p.json"_s)));
        for (qsizetype row = 0; row < 3; ++row)
            trend.add(dsInput, row);
        view.resize(600, 400);
    }

    // One sample of each that has a value; the others have none. Each has a time of its own.
    void read(const QVariant &a, const QVariant &b = {}, const QVariant &s = {})
    {
        const qint64 former = reading.when();
        while (QDateTime::currentMSecsSinceEpoch() <= former)
            QTest::qSleep(1);
        reading.read(dsInput);
        const QStringList names{u"A"_s, u"B"_s, u"S"_s};
        const QVariantList values{a, b, s};
        for (qsizetype i = 0; i < 3; ++i) {
            if (values.at(i).isValid())
                Q_EMIT controller.answered(controller.last,
                                           {{{dsInput, names.at(i), 0}, values.at(i)}});
        }
        Q_EMIT controller.ended(controller.last);
    }
    QString value(qsizetype line, std::size_t sample) const
    {
        const TrendLine &drawn = trend.lines().at(line);
        return drawn.textOf(drawn.samples.at(sample).value, QLocale::c());
    }
    QImage picture() { return view.grab().toImage(); }

    QTemporaryDir folder;
    ProjectDocument document{
        {[](qint32) { return QString(); }, [](qint32) { return qsizetype(0); }}};
    ToldController controller;
    PointReading reading{document, controller};
    Trend trend{document, reading, nullptr};
    TrendView view{trend, nullptr};
};

} // namespace

class TrendTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void pointsWithValuesAreAddedOnce()
    {
        Drawn drawn;
        QCOMPARE(drawn.trend.lines().size(), 3);
        QVERIFY(!drawn.trend.add(dsInput, 0));
        QVERIFY(!drawn.trend.add(dsInput, 3));
        QVERIFY(!drawn.trend.add(dsInputParam, 0));
        QVERIFY(!drawn.trend.add(dsCode, 0));
    }

    void eachReadingIsASampleAndEachFailureAGap()
    {
        Drawn drawn;
        drawn.read(1.5, 2.5, u"On"_s);
        drawn.read({}, 3.5, u"Off"_s);
        QCOMPARE(drawn.value(0, 0), u"1.5 °C"_s);
        QVERIFY(drawn.trend.lines().at(0).samples.at(1).isGap());
        QCOMPARE(drawn.value(1, 1), u"3.5 °C"_s);
        QCOMPARE(drawn.value(2, 0), u"On"_s);
        QCOMPARE(drawn.value(2, 1), u"Off"_s);
        drawn.reading.read(dsInput);
        Q_EMIT drawn.controller.failed(drawn.controller.last, u"Gone"_s);
        QCOMPARE(drawn.trend.times().size(), drawn.trend.lines().at(1).samples.size());
        drawn.reading.read(dsInput);
        drawn.reading.stop(); // is no failure
        QVERIFY(drawn.trend.lines().at(1).samples.size() <= 3);
    }

    void memoryIsBounded()
    {
        Drawn drawn;
        TrendLine line = drawn.trend.lines().at(0);
        QVERIFY(Trend::mostSamples * Trend::mostLines * sizeof(TrendSample) < 8 * 1024 * 1024);
        for (qsizetype row = 0; row < 40; ++row) {
            ProjectRow point;
            point.name = u"V%1"_s.arg(row);
            point.cells = {point.name, {}, 1.0, {}, {}};
            drawn.document.carryOut(RowChanges{{dsVariable, row, {}, point}});
            drawn.trend.add(dsVariable, row);
        }
        QCOMPARE(drawn.trend.lines().size(), Trend::mostLines);
    }

    void aLineFollowsItsPoint()
    {
        Drawn drawn;
        drawn.read(1.0, 2.0, u"On"_s);
        const Project &project = *drawn.document.project();
        drawn.document.carryOut(RowChanges{
            {dsInput, 0, project.rows(dsInput).at(0), project.renamed(dsInput, 0, u"Z"_s)}});
        QCOMPARE(drawn.trend.lines().at(0).name, u"Z"_s);
        QCOMPARE(drawn.trend.lines().at(0).samples.size(), std::size_t(1));
        drawn.document.go(ProjectDocument::Way::Back);
        QCOMPARE(drawn.trend.lines().at(0).name, u"A"_s);
        drawn.document.carryOut(RowChanges{{dsInput, 0, project.rows(dsInput).at(0), {}}});
        QCOMPARE(drawn.trend.lines().at(0).name, u"A"_s); // and is not B now
        QCOMPARE(drawn.trend.lines().at(1).name, u"B"_s);
        drawn.document.go(ProjectDocument::Way::Back);
        drawn.read(7.0);
        QCOMPARE(drawn.value(0, 1), u"7 °C"_s);
    }

    void anotherProjectHasNoLines()
    {
        Drawn drawn;
        drawn.read(1.0);
        drawn.document.setProject(std::make_unique<Project>(drawn.folder.filePath(u"p.json"_s)));
        QVERIFY(drawn.trend.lines().isEmpty());
    }

    void itIsExportedAsATable()
    {
        Drawn drawn;
        drawn.read(1.5, 2.0, u"On"_s);
        drawn.read({}, 3.0, u"Off"_s);
        const CellBlock cells = trendCells(drawn.trend, u"Time"_s);
        QCOMPARE(cells.at(0), QStringList({u"Time"_s, u"A [°C]"_s, u"B [°C]"_s, u"S"_s}));
        QCOMPARE(cells.at(1).sliced(1), QStringList({u"1.5"_s, u"2"_s, u"On"_s}));
        QCOMPARE(cells.at(2).sliced(1), QStringList({QString(), u"3"_s, u"Off"_s}));
    }

    void itIsDrawnAndTold()
    {
        Drawn drawn;
        const QImage empty = drawn.picture();
        drawn.read(1.5, 2.0, u"On"_s);
        drawn.read(2.5, 3.0, u"Off"_s);
        QVERIFY(drawn.picture() != empty);
        const QString told = drawn.view.description();
        const QString numbers = u"A: %1 °C, from %2 °C to %1 °C"_s.arg(QLocale().toString(2.5),
                                                                       QLocale().toString(1.5));
        QVERIFY2(told.contains(numbers), qPrintable(told));
        QVERIFY2(told.contains(u"S: Off, from Off to On"_s), qPrintable(told));
        QCOMPARE(drawn.view.accessibleDescription(), told);
    }

    void eachUnitAndEachStateHasAPartOfItsOwn()
    {
        const QWidget window;
        const auto height = [&window](const QList<TrendLine> &lines) {
            return TrendPainter::leastHeight(lines, window);
        };
        const TrendLine warm{{}, u"A"_s, u"°C"_s};
        const TrendLine damp{{}, u"B"_s, u"%"_s};
        const TrendLine state{{}, u"S"_s, {}, true};
        const int one = height({warm});
        QCOMPARE(height({warm, warm}), one);
        QVERIFY(height({warm, damp}) > one);
        QCOMPARE(height({warm, damp, warm}), height({warm, damp}));
        QVERIFY(height({warm, state}) > one);
        QVERIFY(height({warm, state, state}) > height({warm, state}));
    }

    void theKeysWalkTheSamples()
    {
        Drawn drawn;
        for (const double value : {1.0, 2.0, 3.0})
            drawn.read(value, 5.0, u"On"_s);
        drawn.view.show();
        drawn.view.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&drawn.view));
        drawn.view.setFocus();
        const auto first = [&] { return drawn.view.readOut().value(1); };
        QTest::keyClick(&drawn.view, Qt::Key_Left);
        QCOMPARE(first(), u"A: 3 °C"_s);
        QTest::keyClick(&drawn.view, Qt::Key_Left);
        QCOMPARE(first(), u"A: 2 °C"_s);
        QVERIFY(drawn.view.accessibleDescription().contains(u"A: 2 °C"_s));
        QTest::keyClick(&drawn.view, Qt::Key_Home);
        QTest::keyClick(&drawn.view, Qt::Key_Left);
        QCOMPARE(first(), u"A: 1 °C"_s);
        QTest::keyClick(&drawn.view, Qt::Key_Right);
        QCOMPARE(first(), u"A: 2 °C"_s);
        QTest::keyClick(&drawn.view, Qt::Key_End);
        QCOMPARE(first(), u"A: 3 °C"_s);
        QTest::keyClick(&drawn.view, Qt::Key_Escape);
        QVERIFY(drawn.view.readOut().isEmpty());
        const qint64 span = drawn.view.span();
        QTest::keyClick(&drawn.view, Qt::Key_Plus);
        QCOMPARE(drawn.view.span(), span / 2);
        QTest::keyClick(&drawn.view, Qt::Key_Minus);
        QCOMPARE(drawn.view.span(), span);
    }

    void aPauseKeepsThePicture()
    {
        Drawn drawn;
        drawn.read(1.0, 2.0);
        drawn.read(2.0, 3.0);
        drawn.view.setPaused(true);
        const QImage before = drawn.picture();
        drawn.read(3.0, 4.0);
        QCOMPARE(drawn.picture(), before);
        drawn.view.setPaused(false);
        QVERIFY(drawn.picture() != before);
    }

    void scalesAreRound()
    {
        const TrendScale scale = TrendScale::around(18.3, 21.9);
        QVERIFY(scale.least < 18.3 && scale.most > 21.9);
        QCOMPARE(scale.ticks(5), QList<double>({19, 20, 21, 22}));
        QCOMPARE(TrendScale::labels({0.5, 1, 1.5}, QLocale(QLocale::German)),
                 QStringList({u"0,5"_s, u"1,0"_s, u"1,5"_s}));
        const TrendScale one = TrendScale::around(7, 7);
        QVERIFY(one.least < 7 && one.most > 7);
        for (const double size : {1e-6, 1.0, 1e6, 1e12}) {
            const QList<double> ticks = TrendScale::around(-size, 2 * size).ticks(4);
            QVERIFY2(ticks.size() >= 2 && ticks.size() <= 4,
                     qPrintable(QString::number(ticks.size())));
        }
    }

    void timesAreRound()
    {
        const qint64 noon = QDateTime(QDate(2024, 5, 2), QTime(12, 0)).toMSecsSinceEpoch();
        const QList<qint64> ticks = timeTicks(noon + 1, noon + 5 * 60000, 6);
        QCOMPARE(ticks.size(), 5);
        QCOMPARE(ticks.first(), noon + 60000);
        QVERIFY(timeTicks(noon, noon + 7LL * 24 * 3600 * 1000, 5).size() <= 6);
        QVERIFY(timeLabel(noon, 1000, QLocale(QLocale::German)).contains(u"12:00:00"_s));
    }

    void linesAreToldApartWithoutColour()
    {
        QSet<QString> looks;
        for (qsizetype line = 0; line < Trend::mostLines; ++line) {
            const QPen pen = trendPen(line, QPalette());
            looks.insert(u"%1 %2"_s.arg(int(pen.style())).arg(line % 4));
        }
        QCOMPARE(looks.size(), Trend::mostLines);
    }
};

ORVT_TEST(TrendTest)
#include "TrendTest.moc"
