// The headers of the first two columns stay in sight with them.

#include "support/TestProgram.h"
#include "support/WidgetPicture.h"
#include "support/WidgetTest.h"
#include "widgets/grid/KeptGrid.h"
#include <ORVTListview/ColumnHeader.h>

#include <QtTest/QSignalSpy>
#include <QtTest/QtTest>
#include <QtWidgets/QLabel>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class KeptHeadersTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void theyStayWhereTheyAre_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::newRow("from the left") << Qt::LeftToRight;
        QTest::newRow("from the right") << Qt::RightToLeft;
    }
    void theyStayWhereTheyAre()
    {
        QFETCH(const Qt::LayoutDirection, direction);
        KeptGrid shown(direction);
        QWidget &header = *shown->horizontalHeader()->viewport();
        const auto begin = [&] {
            const QImage image = pictureOf(header);
            return direction == Qt::LeftToRight
                       ? image.copy(0, 0, 230, image.height())
                       : image.copy(image.width() - 230, 0, 230, image.height());
        };
        const QImage scrolled = begin();
        shown.scroll(60);
        QCOMPARE(begin(), scrolled);
        shown.scroll(180);
        QStringList clicked;
        connect(shown.list, &ReportList::ColumnClick, this,
                [&](ColumnHeader *column) { clicked.append(column->Key()); });
        shown.click(shown.head(60));
        shown.click(shown.head(180));
        shown.click(shown.head(330));
        QCOMPARE(clicked.join(u' '), u"Column1 Column2 Column5"_s);
        shown.press(shown.head(118)); // the divider behind the first
        shown.move(shown.head(128));
        shown.move(shown.head(138));
        shown.release(shown.head(138));
        QCOMPARE(shown->columnWidth(0), 140);
        QCOMPARE(shown.begin(1, 1), 140);
    }

    void theyAreDraggedByWhatIsSeen_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::addColumn<QString>("order");
        // Seen are 0 and 1, half of 3 from 240 on, 4 from 300 on.
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            const auto add = [direction](const char *name, int from, int to, const char *order) {
                const char *way = direction == Qt::LeftToRight ? "" : ", from the right";
                QTest::addRow("%s%s", name, way)
                    << direction << from << to << QString::fromLatin1(order);
            };
            add("behind the other", 30, 200, "1 0 2 3 4 5");
            add("not over its middle", 30, 150, "0 1 2 3 4 5");
            add("before the other", 200, 30, "1 0 2 3 4 5");
            add("before a scrolled one", 60, 320, "1 2 3 0 4 5");
            add("behind a scrolled one", 130, 388, "0 2 3 4 1 5");
            add("a scrolled one between them", 340, 130, "0 4 1 2 3 5");
            add("a scrolled one to the begin", 280, 20, "3 0 1 2 4 5");
            add("among scrolled ones", 280, 390, "0 1 2 4 3 5");
        }
    }
    void theyAreDraggedByWhatIsSeen()
    {
        QFETCH(const Qt::LayoutDirection, direction);
        QFETCH(const int, from);
        QFETCH(const int, to);
        QFETCH(const QString, order);
        KeptGrid shown(direction);
        shown.grid->setSortsRows(true);
        shown.grid->setArrangesColumns(true);
        QSignalSpy arranged(shown.grid, &ListGrid::columnsArranged);
        shown.press(shown.head(from));
        for (const int x : {from + (to > from ? 12 : -12), (from + to) / 2, to})
            shown.move(shown.head(x));
        const auto *picture = shown->horizontalHeader()->findChild<QLabel *>(u"DraggedSection"_s);
        QVERIFY(picture && picture->isVisible());
        const int moved = direction == Qt::LeftToRight ? to - from : from - to;
        const QModelIndex dragged = shown->model()->index(0, shown.columnUnder(from));
        const int left = shown->visualRect(dragged).left();
        QCOMPARE(picture->x(), left + moved);
        shown.release(shown.head(to));
        QVERIFY(!shown->horizontalHeader()->findChild<QLabel *>(u"DraggedSection"_s));
        QCOMPARE(shown.order(), order);
        QVERIFY(shown.grid->sortKeys().isEmpty()); // it was no click
        QTRY_COMPARE(arranged.size(), order == u"0 1 2 3 4 5"_s ? 0 : 1);
        shown.click(shown.head(60));
        QCOMPARE(shown.grid->sortKeys().size(), 1);
    }

    void whoMovesADividerDragsNoColumn_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addColumn<int>("at");
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            for (const int at : {118, 121}) // on either side of it
                QTest::addRow("%d, %d", direction, at) << direction << at;
        }
    }
    void whoMovesADividerDragsNoColumn()
    {
        QFETCH(const Qt::LayoutDirection, direction);
        QFETCH(const int, at);
        KeptGrid shown(direction);
        shown.grid->setArrangesColumns(true);
        shown.press(shown.head(at));
        shown.move(shown.head(at + 15));
        shown.move(shown.head(at + 90));
        QVERIFY(!shown->horizontalHeader()->findChild<QLabel *>(u"DraggedSection"_s));
        shown.release(shown.head(at + 90));
        QCOMPARE(shown->columnWidth(0), 210);
        QCOMPARE(shown.order(), u"0 1 2 3 4 5"_s);
    }

    void aDraggedOneScrollsAtTheEdges()
    {
        KeptGrid shown;
        shown.grid->setArrangesColumns(true);
        shown.press(shown.head(60));
        shown.move(shown.head(shown.width() - 30));
        QTest::qWait(100);
        QCOMPARE(shown.scrolled(), 180);
        shown.move(shown.head(shown.width() - 3));
        QTRY_COMPARE(shown.scrolled(), shown->horizontalScrollBar()->maximum());
        shown.move(shown.head(245));
        QTRY_COMPARE(shown.scrolled(), 0);
        shown.release(shown.head(245)); // the third is there by now
        QCOMPARE(shown.order(), u"1 0 2 3 4 5"_s);
    }

    void theListMayGoWhileADividerIsMoved()
    {
        KeptGrid shown;
        connect(shown->horizontalHeader(), &QHeaderView::sectionResized, this,
                [&shown] { delete shown.list.data(); });
        shown.press(shown.head(118));
        shown.move(shown.head(138));
        QVERIFY(!shown.list);
    }

    void aDragIsOverWithItsColumns()
    {
        KeptGrid shown;
        shown.grid->setArrangesColumns(true);
        shown.press(shown.head(60));
        shown.move(shown.head(90));
        shown.move(shown.head(330));
        shown->ColumnHeaders()->Remove(6);
        QVERIFY(!shown->horizontalHeader()->findChild<QLabel *>(u"DraggedSection"_s));
        shown.release(shown.head(330));
        QCOMPARE(shown.order(), u"0 1 2 3 4"_s);
    }
};

ORVT_TEST(KeptHeadersTest)
#include "KeptHeadersTest.moc"
