// A day's work from the first key to the last, in one window: a project is opened, typed in,
// renamed in, read, taken back, saved, closed, and opened again.

#include "WorkbenchTest.h"

#include "support/TestProgram.h"
#include "workbench/renaming/RenameDialog.h"

#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>
#include <ORVTListview/ReportList.h>

#include <QtWidgets/QLineEdit>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

struct WorkingDay : WorkbenchWindow
{
    WorkingDay()
    {
        writeFile(project(), R"({"format": 1, "name": "day", "program": "day.prog",
 "inputs": [{"name": "Temp1", "value": 19.4}, {"name": "Temp2", "value": 22.1}],
 "outputs": [{"name": "Fan1"}]})");
        writeFile(program(), "IF Temp1 > 20\r\n\tFan1 = ON\r\nENDIF\r\n");
        window.openProject(project());
    }

    QString project() const { return folder.filePath(u"day.json"_s); }
    QString program() const { return folder.filePath(u"day.prog"_s); }

    // As the user does it who has a view of the table before the eyes.
    ReportList &inputs()
    {
        window.showType(dsInput);
        return *shown().findChild<ReportList *>(u"ListView1"_s);
    }
    QString firstName() { return shown().ListItems()->Item(1)->SubItem(1); }
    QStringList values()
    {
        ListItems &rows = *shown().ListItems();
        return {rows.Item(1)->SubItem(3), rows.Item(2)->SubItem(3)};
    }

    void rename(const QString &name)
    {
        ReportList &list = inputs();
        list.setFocus();
        QTest::keyClick(&list, Qt::Key_Down);
        QTest::keyClick(&list, Qt::Key_Up);
        QTest::keyClick(&list, Qt::Key_F2);
        auto *field = list.viewport()->findChild<QLineEdit *>();
        QVERIFY(field);
        QTest::keyClicks(field, name);
        QTest::keyClick(field, Qt::Key_Return);
    }
};

} // namespace

class WorkingDayTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void fromTheFirstKeyToTheLast()
    {
        WorkingDay day;
        const QByteArray before = readFile(day.project());

        day.key(Qt::Key_Home, Qt::ControlModifier);
        day.type(u"REM morning"_s);
        day.key(Qt::Key_Return);
        QVERIFY(day.window.isWindowModified());

        NextDialog<RenameDialog> places([](RenameDialog &dialog) { dialog.accept(); });
        day.rename(u"RoomTemp"_s);
        QTRY_COMPARE(day.firstName(), u"RoomTemp"_s);
        QVERIFY(places.wasThere());
        QVERIFY(day.code().CodeText().contains(u"IF RoomTemp > 20"_s));

        const QStringList unread = day.values();
        day.choose(u"Read Values"_s);
        QTRY_VERIFY(day.values() != unread);

        ReportList &list = day.inputs();
        QTest::keyClick(&list, Qt::Key_Z, Qt::ControlModifier);
        QTRY_COMPARE(day.firstName(), u"Temp1"_s);
        day.choose(u"Save"_s);
        QVERIFY(!day.window.isWindowModified());
        const QByteArray saved = "REM morning\r\nIF Temp1 > 20\r\n\tFan1 = ON\r\nENDIF\r\n";
        QCOMPARE(readFile(day.program()), saved);
        QCOMPARE(readFile(day.project()), before);

        day.choose(u"Close Project"_s);
        QVERIFY(!day.command(u"Save"_s)->isEnabled());
        day.window.openForUser(day.project());
        QVERIFY(!day.window.isWindowModified());
        QCOMPARE(day.code().CodeText(), QString::fromUtf8(saved));
        QCOMPARE(readFile(day.program()), saved);
    }
};

ORVT_TEST(WorkingDayTest)
#include "WorkingDayTest.moc"
