// How names of a table are begun to be edited, by mouse and keys.

#include "WorkbenchTest.h"

#include "support/TestProgram.h"
#include "workbench/views/TableViews.h"

#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>
#include <ORVTListview/ORVListView.h>
#include <ORVTListview/ReportList.h>

#include <QtGui/QMouseEvent>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QLineEdit>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

struct Names : WorkbenchWindow
{
    explicit Names(LwType type = dsInput)
        : WorkbenchWindow("Fan1 = Temp1\n")
    {
        views().enterType(type);
        QCoreApplication::processEvents();
    }
    ReportList &list() { return *shown().listView(); }
    QLineEdit *field() { return list().viewport()->findChild<QLineEdit *>(); }

    QString told() { return window.statusBar()->currentMessage(); }

    // Row and column from 0.
    void doubleClick(int row, int column)
    {
        const QPoint place = list().visualRect(list().model()->index(row, column)).center();
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(list().viewport(), Qt::LeftButton, {}, place); // without its release
        QTest::mouseRelease(list().viewport(), Qt::LeftButton, {}, place);
        QCoreApplication::processEvents();
    }
};

} // namespace

class TableNamesTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void aDoubleClickEditsTheName()
    {
        Names names;
        QSignalSpy told(&names.shown(), &ORVListView::DblClick);
        names.doubleClick(0, 1);
        QCOMPARE(told.size(), 1); // the control's event stays
        QVERIFY(names.field());
        QCOMPARE(names.field()->text(), u"Temp1"_s);
        QTest::keyClicks(names.field(), u"Room"_s);
        QTest::keyClick(names.field(), Qt::Key_Escape);
        QTRY_VERIFY(!names.field());
        QCOMPARE(names.shown().ListItems()->Item(1)->SubItem(1), u"Temp1"_s);
    }

    // A row that is dragged soon after a click.
    void aSecondPressThatIsHeldEditsNothing()
    {
        Names names;
        QWidget &view = *names.list().viewport();
        const QPoint place = names.list().visualRect(names.list().model()->index(0, 1)).center();
        QTest::mouseClick(&view, Qt::LeftButton, {}, place);
        QMouseEvent again(QEvent::MouseButtonDblClick, place, view.mapToGlobal(place),
                          Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&view, &again);
        QCoreApplication::processEvents();
        QVERIFY(!names.field());
        QTest::mouseRelease(&view, Qt::LeftButton, {}, place);
        QTRY_VERIFY(names.field());
    }

    void aDoubleClickBehindThePointsNamesANewOne()
    {
        Names names;
        names.doubleClick(4, 1);
        QVERIFY(names.field());
        QTest::keyClicks(names.field(), u"Frost"_s);
        QTest::keyClick(names.field(), Qt::Key_Return);
        QTRY_COMPARE(names.shown().ListItems()->Item(2)->SubItem(1), u"Frost"_s);
        QCOMPARE(names.told(), u"Rows are filled from the top: Frost is in row 2."_s);
    }

    void inTheFirstEmptyRowANameNeedsNoWord()
    {
        Names names;
        names.doubleClick(1, 1);
        QVERIFY(names.field());
        QTest::keyClicks(names.field(), u"Frost"_s);
        QTest::keyClick(names.field(), Qt::Key_Return);
        QTRY_COMPARE(names.shown().ListItems()->Item(2)->SubItem(1), u"Frost"_s);
        QCOMPARE(names.told(), QString());
    }

    void aDoubleClickOnOtherCellsEditsNoName()
    {
        Names names;
        for (const int column : {0, 2, 3, 5}) {
            names.doubleClick(0, column);
            QVERIFY2(!names.field(), qPrintable(QString::number(column)));
        }
        Names timers(dsTimer);
        timers.doubleClick(0, 1);
        QVERIFY(!timers.field());
    }

    void whereCellsAreEditedTheNameStillIs()
    {
        Names names;
        names.views().tables().setEditsCells(true);
        QCoreApplication::processEvents();
        names.doubleClick(0, 1);
        QVERIFY(names.field());
        QCOMPARE(names.field()->text(), u"Temp1"_s);
    }

    // The row with the focus mark, which nobody has selected.
    void aTableThatWasEnteredByKeyboardTakesF2()
    {
        Names names;
        names.shown().setSelectedItem(nullptr);
        names.list().setCurrentIndex(names.list().model()->index(0, 1));
        names.shown().setSelectedItem(nullptr);
        QTest::keyClick(&names.list(), Qt::Key_F2);
        QVERIFY(names.field());
        QCOMPARE(names.field()->text(), u"Temp1"_s);
    }
};

ORVT_TEST(TableNamesTest)
#include "TableNamesTest.moc"
