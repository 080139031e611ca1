// The list of what a check has found, under random checks and languages.

#include "workbench/CheckModel.h"
#include "support/RandomText.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/look/Pictures.h"

#include <ORVTListview/ImageList.h>

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
        ImageList pictures;
        Pictures::fillInto(pictures);
        CheckModel model(pictures);
        const QAbstractItemModelTester tester(
            &model, QAbstractItemModelTester::FailureReportingMode::Fatal);
        for (int i = randomSteps(10'000); i > 0; --i) {
            const int rows = random.number(8);
            const int how = random.number(3);
            if (how == 0)
                checkFindings(random, model, rows);
            else if (how == 1)
                checkWords(random, model, rows);
            else
                model.retranslate();
            QVERIFY(!model.data({}).isValid());
            if (QTest::currentTestFailed())
                return;
        }
    }

private:
    static void checkFindings(RandomText &random, CheckModel &model, int rows)
    {
        QList<ProgramFinding> findings(rows);
        for (ProgramFinding &finding : findings)
            finding = {static_cast<Fault>(random.number(5)), random.number(99) + 1, random.text(4)};
        model.setFindings(findings);
        QVERIFY(!model.isListOfWords());
        QCOMPARE(model.rowCount(), std::max(rows, 1)); // one that says that there are none
        for (int row = 0; row < rows; ++row) {
            QCOMPARE(model.place(row).line, findings[row].line);
            QCOMPARE(model.place(row).word, findings[row].word);
        }
    }
    static void checkWords(RandomText &random, CheckModel &model, int rows)
    {
        QList<ProgramWord> words(rows);
        for (ProgramWord &word : words)
            word = {random.number(99) + 1, random.text(4),
                    static_cast<WordClass>(random.number(5))};
        model.setWords(words);
        QVERIFY(model.isListOfWords());
        QCOMPARE(model.rowCount(), rows);
        for (int row = 0; row < rows; ++row)
            QCOMPARE(model.index(row, CheckModel::Word).data().toString(), words[row].word);
    }
};

ORVT_TEST(CheckModelTest)
#include "CheckModelTest.moc"
