#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/grid/GridFixture.h"
#include <ORVTListview/ListItem.h>

#include <QtGui/QUndoStack>
#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QtTest>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

class RowGrid : public ShownGrid
{
public:
    RowGrid()
        : tester(list->model())
    {
        list->setMultiSelect(true);
        grid->setEditsRows(true);
        QObject::connect(
            grid, &ListGrid::rowsEditing, grid,
            [this](ListGrid::RowDeed deed, const QList<qint32> &rows, QString &refusal) {
                log.append(u"ask %1 %2"_s.arg(deed).arg(joined(rows)));
                refusal = refused;
            });
        QObject::connect(grid, &ListGrid::rowsEdited, grid,
                         [this](ListGrid::RowDeed deed, const QList<qint32> &rows) {
                             log.append(u"did %1 %2"_s.arg(deed).arg(joined(rows)));
                         });
    }
    static QString joined(const QList<qint32> &rows)
    {
        QStringList texts;
        for (const qint32 row : rows)
            texts.append(QString::number(row));
        return texts.join(u' ');
    }

    QAbstractItemModelTester tester;
    QString refused;
};

} // namespace

class RowEditingTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void aRowIsAddedBehindTheChosenOne()
    {
        RowGrid shown;
        shown.click(shown.cell(2));
        shown.key(Qt::Key_Plus, Qt::ControlModifier);
        QCOMPARE(shown.texts(0), u"Text 1|Text 2||Text 3|Text 4|Text 5"_s);
        QCOMPARE(shown.take(), u"ask 0 2, did 0 3"_s);
        QCOMPARE(shown.current(), u"3 0"_s);
        QCOMPARE(shown->SelectedItem(), shown.item(3));
    }

    void rowsAreRemoved()
    {
        RowGrid shown;
        shown.click(shown.cell(2));
        shown.click(shown.cell(4), Qt::LeftButton, Qt::ControlModifier);
        shown.key(Qt::Key_Minus, Qt::ControlModifier);
        QCOMPARE(shown.texts(0), u"Text 1|Text 3|Text 5"_s);
        QCOMPARE(shown.take(), u"ask 1 2 4, did 1 2 4"_s);
    }

    void rowsAreDuplicated()
    {
        RowGrid shown;
        shown.set(2, 1, u"Fan"_s);
        shown.grid->setCellState(shown.item(2), 1, CellState::Manual);
        shown.click(shown.cell(2));
        shown.click(shown.cell(3), Qt::LeftButton, Qt::ShiftModifier);
        shown.key(Qt::Key_D, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(shown.texts(0), u"Text 1|Text 2|Text 3|Text 2|Text 3|Text 4|Text 5"_s);
        QCOMPARE(shown.take(), u"ask 2 2 3, did 2 4 5"_s);
        QCOMPARE(shown.item(4)->SubItem(1), u"Fan"_s);
        QCOMPARE(shown.item(4)->Key(), QString());
        QCOMPARE(shown.grid->cellState(shown.item(4), 1), CellState::Manual);
    }

    void rowsAreMoved()
    {
        RowGrid shown;
        ListItem *second = shown.item(2);
        shown.click(shown.cell(2));
        shown.click(shown.cell(3), Qt::LeftButton, Qt::ShiftModifier);
        shown.key(Qt::Key_Down, Qt::AltModifier);
        QCOMPARE(shown.texts(0), u"Text 1|Text 4|Text 2|Text 3|Text 5"_s);
        QCOMPARE(shown.take(), u"ask 3 2 3, did 3 3 4"_s);
        QCOMPARE(second->Index(), 3);
        QVERIFY(second->Selected() && shown.item(4)->Selected() && !shown.item(2)->Selected());
        shown.key(Qt::Key_Up, Qt::AltModifier);
        shown.key(Qt::Key_Up, Qt::AltModifier);
        QCOMPARE(shown.texts(0), u"Text 2|Text 3|Text 1|Text 4|Text 5"_s);
        shown.take();
        shown.key(Qt::Key_Up, Qt::AltModifier);
        QCOMPARE(shown.take(), QString());
        QVERIFY(!shown.grid->moveRowsUp() && shown.grid->moveRowsDown());
    }

    void aHostRefuses()
    {
        RowGrid shown;
        shown.refused = u"The controller has no more inputs."_s;
        shown.click(shown.cell(2));
        for (const Qt::Key key : {Qt::Key_Plus, Qt::Key_Minus})
            shown.key(key, Qt::ControlModifier);
        QVERIFY(!shown.grid->duplicateRows() && !shown.grid->moveRowsDown());
        QCOMPARE(shown->ListItems()->Count(), 5);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(shown.note(), shown.refused);
        QCOMPARE(shown.take(), u"ask 0 2, ask 1 2, ask 2 2, ask 3 2"_s);
    }

    void sortedRowsAreNotMoved()
    {
        RowGrid shown;
        shown.grid->setSortKeys({{0, Qt::DescendingOrder}});
        shown.click(shown.cell(2));
        QVERIFY(!shown.grid->moveRowsDown());
        QVERIFY(shown.grid->addRow());
        QCOMPARE(shown.item(5)->Text(), QString()); // behind "Text 4"
        QCOMPARE(shown.texts(0), u"Text 5|Text 4|Text 3|Text 2|Text 1|"_s);
        QVERIFY(shown.grid->removeRows());
        QCOMPARE(shown->ListItems()->Count(), 5);
    }

    void anEmptyTableGetsItsFirstRow()
    {
        RowGrid shown;
        shown->Clear();
        QVERIFY(!shown.grid->removeRows() && !shown.grid->duplicateRows());
        QVERIFY(shown.grid->addRow());
        QCOMPARE(shown->ListItems()->Count(), 1);
    }

    void offTheKeysDoNothing()
    {
        RowGrid shown;
        shown.grid->setEditsRows(false);
        shown.click(shown.cell(2));
        for (const Qt::Key key : {Qt::Key_Plus, Qt::Key_Minus})
            shown.key(key, Qt::ControlModifier);
        QVERIFY(!shown.grid->addRow() && !shown.grid->moveRowsDown());
        QCOMPARE(shown->ListItems()->Count(), 5);
        QCOMPARE(shown.take(), QString());
    }

    void theHostMayDoAnything_data()
    {
        QTest::addColumn<bool>("isBefore");
        QTest::addColumn<bool>("destroys");

        QTest::newRow("destroy before") << true << true;
        QTest::newRow("destroy after") << false << true;
        QTest::newRow("clear before") << true << false;
        QTest::newRow("clear after") << false << false;
    }
    void theHostMayDoAnything()
    {
        QFETCH(const bool, isBefore);
        QFETCH(const bool, destroys);
        for (const Qt::Key key : {Qt::Key_Plus, Qt::Key_Minus}) {
            RowGrid shown;
            const auto act = [&] {
                if (destroys)
                    delete shown.list.data();
                else
                    shown->Clear();
            };
            if (isBefore)
                QObject::connect(shown.grid, &ListGrid::rowsEditing, shown.grid, act);
            else
                QObject::connect(shown.grid, &ListGrid::rowsEdited, shown.grid, act);
            shown.click(shown.cell(2));
            shown.key(key, Qt::ControlModifier);
            QCOMPARE(shown.list.isNull(), destroys);
        }
    }

    void undoLeavesRowsThatHaveGone()
    {
        RowGrid shown;
        shown.goTo(2, 1);
        shown.type(u"Fan"_s);
        shown.key(Qt::Key_Return);
        shown.goTo(2, 1);
        shown.key(Qt::Key_Minus, Qt::ControlModifier);
        shown.key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(shown.texts(1), u"|||"_s);
    }
};

ORVT_TEST(RowEditingTest)
#include "RowEditingTest.moc"
