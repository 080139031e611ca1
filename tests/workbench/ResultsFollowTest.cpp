// What the results list by themselves: what users have asked for while it is true, else the
// problems.

#include "WorkbenchTest.h"

#include "support/TestProgram.h"

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// With the analysis that comes after a pause.
void typeAtEnd(WorkbenchWindow &workbench, const QString &text)
{
    workbench.key(Qt::Key_End, Qt::ControlModifier);
    workbench.type(text);
}

void deleteLine(WorkbenchWindow &workbench, int line)
{
    RichTextBox &box = workbench.box();
    box.setSelStart(box.lineStart(line));
    box.setSelLength(static_cast<qint32>(box.lineText(line).size()));
    workbench.key(Qt::Key_Delete);
}

} // namespace

class ResultsFollowTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void openedResultsHaveTheProblems()
    {
        WorkbenchWindow workbench("Fan1 = tmep");
        workbench.choose(u"Results"_s);
        QVERIFY(workbench.results().isVisible());
        QTRY_COMPARE(workbench.resultTexts(), u"Line 1: tmep is not known"_s);
        QVERIFY(workbench.box().hasFocus());
        typeAtEnd(workbench, u" + other "_s);
        QTRY_COMPARE(workbench.resultTexts(),
                     u"Line 1: tmep is not known|Line 1: other is not known"_s);
    }

    void statementsOfAFormerTextMakeWay()
    {
        WorkbenchWindow workbench("Fan1 = Temp1");
        workbench.key(Qt::Key_F6, Qt::ControlModifier);
        QCOMPARE(workbench.resultTexts(), u"1 Fan1 = Temp1 Assignment"_s);
        QTest::qWait(500); // nothing has changed
        QCOMPARE(workbench.resultTexts(), u"1 Fan1 = Temp1 Assignment"_s);
        typeAtEnd(workbench, u" + tmep "_s);
        QTRY_COMPARE(workbench.resultTexts(), u"Line 1: tmep is not known"_s);
        QVERIFY(workbench.results().isHeaderHidden());
        QVERIFY(workbench.box().hasFocus());
    }

    void usesStayAsLongAsTheyAreTrue()
    {
        WorkbenchWindow workbench("Fan1 = Temp1\nFan1 = Temp1 + 1\nFan1 = 3");
        workbench.box().setSelStart(8);
        workbench.key(Qt::Key_F12, Qt::ShiftModifier);
        QCOMPARE(workbench.resultTexts(), u"Line 1 Fan1 = Temp1|Line 2 Fan1 = Temp1 + 1"_s);
        typeAtEnd(workbench, u" + tmep "_s);
        deleteLine(workbench, 0);
        QTRY_COMPARE(workbench.resultTexts(), u"Line 2 Fan1 = Temp1 + 1"_s);
        workbench.box().setSelStart(workbench.box().lineStart(1));
        workbench.type(u" "_s);
        workbench.type(u" "_s);
        QTest::qWait(500);
        QCOMPARE(workbench.resultTexts(), u"Line 2 Fan1 = Temp1 + 1"_s);
        deleteLine(workbench, 1);
        QTRY_COMPARE(workbench.resultTexts(), u"Line 3: tmep is not known"_s);
    }

    void aNameThatNothingUsesOpensNoEmptyList()
    {
        WorkbenchWindow workbench("Fan1 = tmep");
        workbench.window.showType(dsInput);
        workbench.shown().setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Home);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F12, Qt::ShiftModifier);
        QCOMPARE(workbench.window.statusBar()->currentMessage(), u"Nothing uses Temp1."_s);
        QVERIFY(!workbench.results().isVisible());
        workbench.choose(u"Results"_s);
        QTRY_COMPARE(workbench.resultTexts(), u"Line 1: tmep is not known"_s);
    }
};

ORVT_TEST(ResultsFollowTest)
#include "ResultsFollowTest.moc"
