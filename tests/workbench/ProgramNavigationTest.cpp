#include "WorkbenchTest.h"

#include "support/TestProgram.h"
#include <ORVTListview/ListItem.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class ProgramNavigationTest : public WidgetTest
{
    Q_OBJECT

private:
    // A project with two inputs, and a log that names the second one.
    static QString writeProject(const WorkbenchWindow &workbench, const QByteArray &program)
    {
        writeFile(workbench.folder.filePath(u"p.prog"_s), program);
        const QString project = workbench.folder.filePath(u"p.json"_s);
        writeFile(project, R"({"format": 1, "name": "p", "program": "p.prog",
            "inputs": [{"name": "Temp1"}, {"name": "Temp2"}], "outputs": [{"name": "Fan1"}],
            "logs": [{"data": "Fan1"}, {"data": "TEMP2"}]})");
        return project;
    }
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    static int selectedRow(WorkbenchWindow &workbench)
    {
        const ListItem *item = workbench.shown().SelectedItem();
        return item ? item->Index() : 0;
    }

private Q_SLOTS:
    void goesToThePointAndBack()
    {
        WorkbenchWindow workbench;
        workbench.window.openProject(writeProject(workbench, "Fan1 = 3\nFan1 = temp2 + 3"));
        workbench.box().setSelStart(workbench.box().lineStart(1) + 9);
        press(Qt::Key_F12);
        QCOMPARE(workbench.shown().CurrentType(), dsInput);
        QCOMPARE(selectedRow(workbench), 2);
        press(Qt::Key_Left, Qt::AltModifier);
        QCOMPARE(workbench.shown().CurrentType(), dsCode);
        QCOMPARE(workbench.box().SelStart(), workbench.box().lineStart(1) + 9);
        QVERIFY(workbench.box().hasFocus());
        QVERIFY(workbench.statusTexts().endsWith(u"|Row: 2, Col: 10"_s));
    }

    void saysWhereThereIsNoWay()
    {
        WorkbenchWindow workbench("Fan1 = tmep");
        press(Qt::Key_Left, Qt::AltModifier);
        QCOMPARE(workbench.window.statusBar()->currentMessage(),
                 u"There is no place to go back to."_s);
        workbench.key(Qt::Key_End);
        press(Qt::Key_F12);
        QCOMPARE(workbench.window.statusBar()->currentMessage(),
                 u"tmep is no point of the project."_s);
        QCOMPARE(workbench.shown().CurrentType(), dsCode);
        QCOMPARE(workbench.box().SelStart(), 11);
    }

    void listsAllUsesInProgramAndTables()
    {
        WorkbenchWindow workbench;
        workbench.window.openProject(
            writeProject(workbench, "REM temp2\nIF Temp2 > 3\n  Fan1 = temp2\nENDIF"));
        workbench.box().setSelStart(workbench.box().lineStart(1) + 4);
        press(Qt::Key_F12, Qt::ShiftModifier);
        QCOMPARE(workbench.resultTexts(), u"Line 2 IF Temp2 > 3|Line 3 Fan1 = Temp2|Logs 2 Data"_s);
        QTreeView &results = workbench.results();
        results.setFocus();
        results.setCurrentIndex(results.model()->index(2, 0));
        press(Qt::Key_Return);
        QCOMPARE(workbench.shown().CurrentType(), dsLog);
        QCOMPARE(selectedRow(workbench), 2);
        results.setFocus();
        results.setCurrentIndex(results.model()->index(1, 0));
        press(Qt::Key_Return);
        QCOMPARE(workbench.shown().CurrentType(), dsCode);
        QCOMPARE(workbench.box().SelText(), u"Temp2"_s);
        QCOMPARE(workbench.box().SelStart(), workbench.box().lineStart(2) + 9);
        press(Qt::Key_Left, Qt::AltModifier);
        QCOMPARE(workbench.shown().CurrentType(), dsLog);
        press(Qt::Key_Left, Qt::AltModifier);
        QCOMPARE(workbench.box().SelStart(), workbench.box().lineStart(1) + 4);
    }

    void listsTheUsesOfAPointFromItsTable()
    {
        WorkbenchWindow workbench;
        workbench.window.openProject(writeProject(workbench, "Fan1 = Temp1\nFan1   = Temp2"));
        workbench.window.showType(dsInput);
        workbench.shown().setFocus();
        press(Qt::Key_Home);
        press(Qt::Key_Down);
        press(Qt::Key_F12, Qt::ShiftModifier);
        QCOMPARE(workbench.resultTexts(), u"Line 2 Fan1 = Temp2|Logs 2 Data"_s);
    }

    void placesMoveWithTheText()
    {
        WorkbenchWindow workbench;
        workbench.window.openProject(writeProject(workbench, "Fan1 = 3\nFan1 = temp2 + 3"));
        workbench.box().setSelStart(workbench.box().lineStart(1) + 9);
        press(Qt::Key_F12);
        workbench.window.showType(dsCode);
        workbench.code().setFocus();
        workbench.key(Qt::Key_Home, Qt::ControlModifier);
        workbench.key(Qt::Key_End);
        workbench.key(Qt::Key_Return);
        press(Qt::Key_Left, Qt::AltModifier);
        QVERIFY(workbench.statusTexts().endsWith(u"|Row: 3, Col: 10"_s));
    }

    void anotherProjectHasNoWayBack()
    {
        WorkbenchWindow workbench("Fan1 = Temp1");
        workbench.key(Qt::Key_End);
        press(Qt::Key_F12);
        QCOMPARE(workbench.shown().CurrentType(), dsInput);
        workbench.window.openProject(workbench.writeProject(u"two"_s, "Fan1 = 3"));
        press(Qt::Key_Left, Qt::AltModifier);
        QCOMPARE(workbench.shown().CurrentType(), dsCode);
        QVERIFY(workbench.statusTexts().endsWith(u"|Row: 1, Col: 1"_s));
    }
};

ORVT_TEST(ProgramNavigationTest)
#include "ProgramNavigationTest.moc"
