// The list of what a check has found, under random checks and languages.

#include "workbench/CheckModel.h"
#include "support/RandomText.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtTest/QAbstractItemModelTester>

#include <algorithm>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class CheckModelTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void holdsUnderRandomChecks()
    {
        RandomText random;
        CheckModel model;
        const QAbstractItemModelTester tester(
            &model, QAbstractItemModelTester::FailureReportingMode::Fatal);
        for (int i = randomSteps(10'000); i > 0; --i) {
            const int rows = random.number(8);
            const int how = random.number(5);
            if (how == 0)
                checkProblems(random, model, rows);
            else if (how == 1)
                checkStatements(random, model, rows);
            else if (how == 2)
                checkUses(random, model, rows);
            else if (how == 3)
                model.moveLines(0, {random.number(99) + 1, random.number(9), random.number(9)});
            else
                model.retranslate();
            QVERIFY(!model.data({}).isValid());
            if (QTest::currentTestFailed())
                return;
        }
    }

    void tellsHowManyValuesAFunctionNeeds()
    {
        CheckModel model;
        const auto told = [&model](const QString &function) {
            LineProblem found{Fault::ValueCount, {1, 2}, function, 7};
            model.setProblems({{1, found}}, 1);
            return model.index(0, 0).data().toString();
        };
        QCOMPARE(told(u"SQRT"_s), u"Line 1: SQRT needs one value and has 7"_s);
        QCOMPARE(told(u"LIMIT"_s), u"Line 1: LIMIT needs 3 values and has 7"_s);
        QCOMPARE(told(u"HISEL"_s), u"Line 1: HISEL needs 2 values or more and has 7"_s);
    }

private:
    static void checkProblems(RandomText &random, CheckModel &model, int rows)
    {
        QList<ProgramProblem> problems(rows);
        for (ProgramProblem &problem : problems)
            problem = {random.number(3) + 1, // many that are the same as before
                       {static_cast<Fault>(random.number(2)), {1, 2}, random.text(1), 3}};
        const int more = random.number(2);
        model.setProblems(problems, rows + more);
        QCOMPARE(model.content(), CheckModel::Content::Problems);
        // One that says that there are none, or that there are more.
        QCOMPARE(model.rowCount(), rows == 0 ? 1 : rows + more);
        for (int row = 0; row < rows; ++row) {
            QCOMPARE(model.place(row).line, problems[row].line);
            QCOMPARE(model.place(row).piece, problems[row].found.place);
            QVERIFY(!model.index(row, 0).data().toString().isEmpty());
            QVERIFY(!model.index(row, 0).data(Qt::DecorationRole).isNull());
            QVERIFY(!model.index(row, 0).data(Qt::ToolTipRole).toString().isEmpty());
        }
    }
    static void checkThatNothingIsWrong(const CheckModel &model, int row)
    {
        QVERIFY(!model.index(row, 0).data(Qt::DecorationRole).isValid());
        QVERIFY(!model.index(row, 0).data(Qt::ToolTipRole).isValid());
    }
    static void checkStatements(RandomText &random, CheckModel &model, int rows)
    {
        QList<ListedStatement> statements(rows);
        for (ListedStatement &statement : statements)
            statement = {random.number(99) + 1, static_cast<StatementKind>(random.number(6)),
                         random.number(3), random.text(4)};
        model.setStatements(statements);
        QCOMPARE(model.content(), CheckModel::Content::Statements);
        QCOMPARE(model.rowCount(), rows);
        for (int row = 0; row < rows; ++row) {
            QCOMPARE(model.index(row, 1).data().toString(), indentedText(statements[row]));
            QCOMPARE(model.place(row).line, statements[row].line);
            checkThatNothingIsWrong(model, row);
        }
    }
    static void checkUses(RandomText &random, CheckModel &model, int rows)
    {
        QList<ShownUse> uses(rows);
        for (ShownUse &use : uses)
            use = {random.number(2) == 0 ? ResultPlace{random.number(99) + 1, {3, 4}}
                                         : ResultPlace{.type = dsLog, .row = random.number(9)},
                   random.text(4)};
        model.setUses(uses);
        QCOMPARE(model.content(), CheckModel::Content::Uses);
        QCOMPARE(model.rowCount(), rows);
        for (int row = 0; row < rows; ++row) {
            QCOMPARE(model.place(row), uses[row].place);
            QCOMPARE(model.index(row, 1).data().toString(), uses[row].text);
            checkThatNothingIsWrong(model, row);
        }
    }
};

ORVT_TEST(CheckModelTest)
#include "CheckModelTest.moc"
