// The walk through the problems, where the analysis is still at work.

#include "WorkbenchTest.h"

#include "support/TestProgram.h"

#include <ORVTListview/CodeView.h>
#include <ORVTListview/ORVListView.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class ProblemWalkTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstProblemIsReachedRightAfterOpening()
    {
        WorkbenchWindow workbench("Fan1 = Temp1\nnobody = 1\n");
        QVERIFY(workbench.code().codeView()->problems().isEmpty()); // not found yet
        workbench.choose(u"Analyse"_s);                             // which finds all
        workbench.window.openProject(workbench.writeProject(u"two"_s, "Fan1 = 1\nnobody = 1\n"));
        QVERIFY(workbench.code().codeView()->problems().isEmpty());
        press(workbench, Qt::Key_F8);
        QCOMPARE(workbench.box().SelStart(), 0);
        QTRY_COMPARE(workbench.box().GetLineFromChar(workbench.box().SelStart()), 1);
    }

    void nothingJumpsOnceTheCaretHasMoved()
    {
        WorkbenchWindow workbench("Fan1 = Temp1\nnobody = 1\n");
        press(workbench, Qt::Key_F8);
        workbench.key(Qt::Key_Right);
        QTRY_VERIFY(!workbench.code().codeView()->problems().isEmpty());
        QCoreApplication::processEvents();
        QCOMPARE(workbench.box().SelStart(), 1);
    }

    void aProgramWithoutOneSaysSo()
    {
        WorkbenchWindow workbench("Fan1 = Temp1\n");
        press(workbench, Qt::Key_F8);
        QTRY_COMPARE(workbench.window.statusBar()->currentMessage(),
                     u"The programs have no problems."_s);
    }

private:
    static void press(WorkbenchWindow &workbench, Qt::Key key)
    {
        QTest::keyClick(&workbench.box(), key);
    }
};

ORVT_TEST(ProblemWalkTest)
#include "ProblemWalkTest.moc"
