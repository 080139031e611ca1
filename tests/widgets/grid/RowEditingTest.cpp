#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/grid/GridFixture.h"
#include <ORVTListview/ColumnHeaders.h>
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>
#include <ORVTListview/ReportList.h>

#include <QtCore/QPointer>
#include <QtGui/QKeyEvent>
#include <QtGui/QUndoStack>
#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QSignalSpy>
#include <QtTest/QtTest>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

class RowGrid : public ShownGrid
{
public:
    explicit RowGrid(int count = 5)
        : ShownGrid(count)
        , tester(list->model())
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

    void aHostChangesRowsWhileItIsAskedToMove()
    {
        RowGrid shown;
        QObject::connect(shown.grid, &ListGrid::rowsEditing, shown.grid, [&] {
            shown->ListItems()->Remove(1);
            shown.goTo(4, 0);
        });
        shown.click(shown.cell(2));
        QVERIFY(!shown.grid->moveRowsUp()); // it is the first by now
        QCOMPARE(shown.texts(0), u"Text 2|Text 3|Text 4|Text 5"_s);
    }

    void aHostChangesRowsWhileSomeGo_data()
    {
        QTest::addColumn<bool>("clears");

        QTest::newRow("removes") << false;
        QTest::newRow("clears") << true;
    }
    void aHostChangesRowsWhileSomeGo()
    {
        QFETCH(const bool, clears);
        RowGrid shown;
        const auto act = [&] {
            if (clears)
                shown->Clear();
            else if (shown->ListItems()->Count() > 1)
                shown->ListItems()->Remove(1);
        };
        shown.click(shown.cell(2));
        shown.click(shown.cell(4), Qt::LeftButton, Qt::ControlModifier);
        QObject::connect(shown->selectionModel(), &QItemSelectionModel::currentChanged, shown.grid,
                         act, Qt::SingleShotConnection);
        QObject::connect(shown->model(), &QAbstractItemModel::rowsRemoved, shown.grid, act,
                         Qt::SingleShotConnection);
        QVERIFY(shown.grid->removeRows());
        QVERIFY(!clears || shown->ListItems()->Count() == 0);
        QVERIFY(!shown.texts(0).contains(u"Text 2"_s) && !shown.texts(0).contains(u"Text 4"_s));
    }

    void manyRowsOfASortedTableGoAtOnce()
    {
        RowGrid shown(40);
        for (int row = 1; row <= 40; ++row)
            shown.set(row, 1, QString::number(row * 7 % 41));
        shown.grid->setSortKeys({{1, Qt::AscendingOrder}});
        QSignalSpy removed(shown->model(), &QAbstractItemModel::rowsRemoved);
        shown.key(Qt::Key_A, Qt::ControlModifier);
        shown.release(shown.cell(3), Qt::LeftButton, {});
        shown.click(shown.cell(3), Qt::LeftButton, Qt::ControlModifier); // stays
        const ListItem *stays = shown->ListItems()->Item(shown.item(1)->Index());
        QVERIFY(stays->isAlive());
        const QString text = shown.text(3, 1);
        shown.key(Qt::Key_Minus, Qt::ControlModifier);
        QCOMPARE(removed.size(), 2); // above and below
        QCOMPARE(shown.texts(1), text);
        QCOMPARE(shown->ListItems()->Count(), 1);
        QCOMPARE(shown.item(1)->SubItem(1), text);
    }

    void noRowChangesWhileAnotherChangeIsAnnounced_data()
    {
        QTest::addColumn<bool>("sorted");
        QTest::newRow("in their own order") << false;
        QTest::newRow("sorted") << true;
    }
    void noRowChangesWhileAnotherChangeIsAnnounced()
    {
        QFETCH(const bool, sorted);
        RowGrid shown;
        if (sorted)
            shown.grid->setSortKeys({{0, Qt::DescendingOrder}});
        QList<qint32> errors;
        const auto meddle = [&] {
            errors.append(errorOf([&] { shown->Add(1); }));
            errors.append(errorOf([&] { shown->ListItems()->Remove(1); }));
            errors.append(errorOf([&] { shown->Clear(); }));
            errors.append(errorOf([&] { shown->ColumnHeaders()->Add(0, u"x"_s); }));
            errors.append(errorOf([&] { shown->ColumnHeaders()->Remove(1); }));
        };
        const QAbstractItemModel *model = shown->model();
        connect(model, &QAbstractItemModel::rowsAboutToBeInserted, this, meddle);
        connect(model, &QAbstractItemModel::rowsAboutToBeRemoved, this, meddle);
        connect(model, &QAbstractItemModel::modelAboutToBeReset, this, meddle);
        connect(model, &QAbstractItemModel::layoutAboutToBeChanged, this, meddle);
        shown->Add(1);
        shown->ListItems()->Remove(2);
        shown.grid->setSortKeys({{0, Qt::AscendingOrder}});
        QCOMPARE(shown->ListItems()->Count(), 5);
        shown->setRows({RowContent{.text = u"new"_s}});
        QCOMPARE(errors, QList<qint32>(20, qint32(InvalidCall)));
        QCOMPARE(shown.texts(0), u"new"_s);
        QCOMPARE(shown->ColumnHeaders()->Count(), 6);
    }

    void aHostDestroysTheListMeanwhile_data()
    {
        QTest::addColumn<QString>("deed");

        for (const char *deed : {"add", "remove", "move", "sort", "filter"})
            QTest::newRow(deed) << QString::fromLatin1(deed);
    }
    void aHostDestroysTheListMeanwhile()
    {
        QFETCH(const QString, deed);
        for (const bool isCurrent : {false, true}) {
            auto *list = new ReportList;
            list->ColumnHeaders()->Add(1, u"A"_s, u"A"_s);
            for (int row = 1; row <= 3; ++row)
                list->ListItems()->Add(row, QString(), QString::number(row));
            ListGrid *grid = list->grid();
            grid->setEditsRows(true);
            list->setCurrentIndex(list->model()->index(1, 0));
            const QPointer<ReportList> alive(list);
            const auto destroy = [&] { delete alive.data(); };
            if (isCurrent)
                QObject::connect(list->selectionModel(), &QItemSelectionModel::currentChanged, list,
                                 destroy);
            else
                QObject::connect(list->model(), &QAbstractItemModel::layoutChanged, list, destroy);
            if (deed == u"add"_s)
                grid->addRow();
            else if (deed == u"remove"_s)
                grid->removeRows();
            else if (deed == u"move"_s)
                grid->moveRowsUp();
            else if (deed == u"sort"_s)
                grid->setSortKeys({{0, Qt::DescendingOrder}});
            else
                grid->setFilterText(ListGrid::anyColumn, u"3"_s);
            delete alive.data();
        }
    }

    void newRowsAreSelectedAsAWhole()
    {
        RowGrid shown;
        shown.click(shown.cell(2));
        shown.click(shown.cell(3), Qt::LeftButton, Qt::ShiftModifier);
        QVERIFY(shown.grid->duplicateRows());
        QVERIFY(shown->selectionModel()->isRowSelected(3) &&
                shown->selectionModel()->isRowSelected(4));
        QVERIFY(shown.item(4)->Selected() && shown.item(5)->Selected());
        QVERIFY(!shown.item(2)->Selected());
    }

    void whatTheProgramHasSelectedCounts()
    {
        RowGrid shown(200);
        for (int row = 1; row <= 150; ++row)
            shown.item(row)->setSelected(true);
        QVERIFY(shown.grid->removeRows());
        QCOMPARE(shown->ListItems()->Count(), 50);
    }

    void rowsThatFollowOneAnotherGoInOneNotice()
    {
        RowGrid shown(200);
        shown->selectAll();
        shown.item(100)->setSelected(false);
        QSignalSpy removed(shown->model(), &QAbstractItemModel::rowsRemoved);
        QVERIFY(shown.grid->removeRows());
        QCOMPARE(shown.texts(0), u"Text 100"_s);
        QCOMPARE(removed.size(), 2);
    }

    void rowsThatLieApartGoInOneNotice_data()
    {
        QTest::addColumn<bool>("sorted");
        QTest::newRow("in their own order") << false;
        QTest::newRow("sorted") << true;
    }

    void rowsThatLieApartGoInOneNotice()
    {
        QFETCH(const bool, sorted);
        RowGrid shown(200);
        for (int row = 1; row <= 200; ++row)
            shown.set(row, 1, QString::number(row * 7 % 201));
        if (sorted)
            shown.grid->setSortKeys({{1, Qt::DescendingOrder}});
        const QStringList before = shown.texts(0).split(u'|');
        QStringList stay;
        for (int place = 0; place < 200; ++place) {
            const bool goes = place % 2 == 0;
            ListItem &item = *shown->ListItems()->Item(before.at(place).mid(5).toInt());
            item.setSelected(goes);
            if (!goes)
                stay.append(before.at(place));
        }
        shown->ListItems()->Item(stay.at(7).mid(5).toInt())->setVisible(false);
        QSignalSpy removed(shown->model(), &QAbstractItemModel::rowsRemoved);
        QVERIFY(shown.grid->removeRows());
        QCOMPARE(removed.size(), 1);
        QCOMPARE(shown.texts(0), stay.join(u'|'));
        QVERIFY(shown->isRowHidden(7));
        shown->ListItems()->Add(1, QString(), u"new"_s);
        QCOMPARE(shown.text(sorted ? 101 : 1, 0), u"new"_s);
    }

    void aHostMeddlesWhileRowsThatLieApartGo()
    {
        RowGrid shown(100);
        for (int row = 1; row <= 100; row += 2)
            shown.item(row)->setSelected(true);
        QObject::connect(
            shown->model(), &QAbstractItemModel::layoutChanged, shown.grid,
            [&shown] {
                shown->ListItems()->Remove(2);
                shown.grid->setFilterText(0, u"Text"_s);
            },
            Qt::SingleShotConnection);
        QVERIFY(shown.grid->removeRows());
        QCOMPARE(shown->ListItems()->Count(), 49);
        QCOMPARE(shown.texts(0).left(13), u"Text 4|Text 6"_s);
    }

    void aHeldKeyRemovesOnce()
    {
        RowGrid shown;
        shown.click(shown.cell(2));
        shown.key(Qt::Key_Minus, Qt::ControlModifier);
        QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Minus, Qt::ControlModifier, QString(), true);
        QCoreApplication::sendEvent(shown.list, &repeated);
        QCOMPARE(shown->ListItems()->Count(), 4);
    }

    void aRefusalIsShownInAnEmptyTable()
    {
        RowGrid shown;
        shown.refused = u"The controller has no more inputs."_s;
        shown->Clear();
        QVERIFY(!shown.grid->addRow());
        QCOMPARE(shown.note(), shown.refused);
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
