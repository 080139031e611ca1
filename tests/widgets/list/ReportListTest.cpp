#include "support/RandomSeed.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/list/ReportListEvents.h"
#include "widgets/list/ReportListFixture.h"

#include <QtCore/QMimeData>
#include <QtCore/QPointer>
#include <QtCore/QRandomGenerator>
#include <QtCore/QSet>
#include <QtGui/QDragEnterEvent>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QScrollBar>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class ReportListTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void selectsOneRowOrMany();
    void selectsScatteredRowsOneByOne();
    void keepsTheSelectionInOnePlace();
    void keepsTheSelectionOverAChangeOfColumns();
    void selectsWithoutScrolling();
    void refusesRowsOfOthers();
    void knowsTheSelectedItemOfMany();
    void hitsRowsByTwipsFromTheCorner();
    void knowsTheFirstVisibleRow();
    void bringsARowIntoView();
    void bringsARowIntoViewOnceShown();
    void goesToARow();
    void findsRows();
    void writesASubItemOfAllRows();
    void refusesSubItemsOfNoColumn();
    void keepsSelectionAndPlaceOverAnUpdate();
    void replacesAllRows();
    void keepsRowsOverAChangeOfColumns();
    void paintsAtOnce();
    void raisesNothingForTheProgram();
    void livesWithoutColumns();
    void holdsThirtyThousandRows();
    void goesWhileADragIsOverIt();
};

void ReportListTest::selectsOneRowOrMany()
{
    const ShownList shown;
    QCOMPARE(shown->SelectedItem(), nullptr);
    QVERIFY(!shown->MultiSelect());
    shown.item(1)->setSelected(true);
    shown.item(3)->setSelected(true);
    QVERIFY(!shown.item(1)->Selected());
    QCOMPARE(shown->SelectedItem(), shown.item(3));
    shown->setMultiSelect(true);
    shown.item(1)->setSelected(true);
    QVERIFY(shown.item(1)->Selected() && shown.item(3)->Selected());
    shown->setMultiSelect(false); // the current one remains
    QVERIFY(!shown.item(1)->Selected() && shown.item(3)->Selected());
    shown.item(3)->setSelected(false);
    QCOMPARE(shown->SelectedItem(), nullptr);
    shown->setSelectedItem(shown.item(5));
    shown->setSelectedItem(nullptr);
    QVERIFY(!shown.item(5)->Selected());
}

namespace {

QList<int> selectedRows(const ReportList &list)
{
    QList<int> rows;
    for (int row = 1; row <= list.ListItems()->Count(); ++row) {
        if (list.ListItems()->Item(row)->Selected())
            rows.append(row);
    }
    return rows;
}

// As the view has them, which draws by it.
QList<int> drawnRows(const ReportList &list)
{
    QList<int> rows;
    for (const QItemSelectionRange &range : list.selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.append(row + 1);
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

} // namespace

// Were it quadratic, it would not end before the runner ends it.
void ReportListTest::selectsScatteredRowsOneByOne()
{
    const ShownList shown(0, 6);
    constexpr int count = 16'384;
    shown->setRows(QList<RowContent>(2 * count));
    shown->setMultiSelect(true);
    QList<int> chosen;
    for (int row = 1; row <= 2 * count; row += 2) {
        shown.item(row)->setSelected(true);
        chosen.append(row);
    }
    QCOMPARE(selectedRows(*shown.list), chosen);
    QCOMPARE(shown->SelectedItem(), shown.item(1));
    QCoreApplication::processEvents();
    QCOMPARE(drawnRows(*shown.list), chosen);
    for (int row = 1; row <= 2 * count; ++row)
        shown.item(row)->setSelected(row % 2 == 0);
    for (int &row : chosen)
        ++row;
    QCOMPARE(selectedRows(*shown.list), chosen);
    QCoreApplication::processEvents();
    QCOMPARE(drawnRows(*shown.list), chosen);
    shown->selectAll();
    QCOMPARE(selectedRows(*shown.list).size(), qsizetype(2 * count));
    shown.click(shown.cell(3));
    QCOMPARE(selectedRows(*shown.list), QList<int>{3});
}

void ReportListTest::keepsTheSelectionInOnePlace()
{
    const ShownList shown(0, 3);
    QRandomGenerator random(randomSeed(7));
    shown->setMultiSelect(true);
    QSet<ListItem *> chosen; // the same by another way
    const auto any = [&] { return shown.item(1 + random.bounded(shown->ListItems()->Count())); };
    for (int step = 0; step < 4000; ++step) {
        const int kind = random.bounded(40);
        if (kind < 3 || shown->ListItems()->Count() < 5) {
            shown->Add(1 + random.bounded(shown->ListItems()->Count() + 1));
        } else if (kind < 4) {
            ListItem *gone = any();
            chosen.remove(gone);
            shown->ListItems()->Remove(gone->Index());
        } else if (kind < 5) {
            ListItem *one = any();
            const bool was = chosen.contains(one);
            shown->selectionModel()->select(shown->model()->index(one->Index() - 1, 0),
                                            QItemSelectionModel::Toggle |
                                                QItemSelectionModel::Rows);
            if (was)
                chosen.remove(one);
            else
                chosen.insert(one);
        } else if (kind == 6 && random.bounded(10) == 0) {
            shown->clearSelection();
            chosen.clear();
        } else if (kind == 7 && random.bounded(10) == 0) {
            ListItem *one = any();
            shown->setSelectedItem(one);
            chosen = {one};
        } else {
            ListItem *one = any();
            const bool selects = random.bounded(5) > 0;
            one->setSelected(selects);
            if (selects)
                chosen.insert(one);
            else
                chosen.remove(one);
        }
        if (random.bounded(50) == 0) {
            QCoreApplication::processEvents();
            QCOMPARE(drawnRows(*shown.list), selectedRows(*shown.list));
        }
        if (random.bounded(20) == 0) {
            QList<int> expected;
            for (const ListItem *item : std::as_const(chosen))
                expected.append(item->Index());
            std::sort(expected.begin(), expected.end());
            QCOMPARE(selectedRows(*shown.list), expected);
        }
    }
    QVERIFY(shown->ListItems()->Count() > 150);
    shown->setRows(QList<RowContent>(5));
    QCOMPARE(selectedRows(*shown.list), QList<int>());
    QCoreApplication::processEvents();
    QCOMPARE(drawnRows(*shown.list), QList<int>());
}

void ReportListTest::keepsTheSelectionOverAChangeOfColumns()
{
    const ShownList shown(5, 2);
    shown->setMultiSelect(true);
    shown.item(2)->setSelected(true);
    shown.item(4)->setSelected(true);
    const auto isWhole = [&] {
        QCoreApplication::processEvents();
        for (int row = 0; row < 5; ++row) {
            for (int column = 0; column < shown->model()->columnCount(); ++column) {
                if (shown->selectionModel()->isSelected(shown->model()->index(row, column)) !=
                    (row == 1 || row == 3))
                    return false;
            }
        }
        return selectedRows(*shown.list) == QList<int>{2, 4};
    };
    shown->ColumnHeaders()->Add();
    QVERIFY(isWhole());
    shown->ColumnHeaders()->Add(1);
    QVERIFY(isWhole());
    shown->ColumnHeaders()->Remove(1);
    QVERIFY(isWhole());
}

void ReportListTest::selectsWithoutScrolling()
{
    const ShownList shown(100);
    shown->setSelectedItem(shown.item(90));
    QCOMPARE(shown->GetFirstVisible(), shown.item(1));
    shown.item(50)->setSelected(true);
    QCOMPARE(shown->GetFirstVisible(), shown.item(1));
}

void ReportListTest::refusesRowsOfOthers()
{
    const ShownList shown;
    ReportList other;
    ListItem *stranger = other.Add();
    QCOMPARE(errorOf([&] { shown->setSelectedItem(stranger); }), qint32{InvalidCall});
}

void ReportListTest::knowsTheSelectedItemOfMany()
{
    const ShownList shown;
    shown->setMultiSelect(true);
    shown.item(4)->setSelected(true);
    shown.item(2)->setSelected(true);
    QCOMPARE(shown->SelectedItem(), shown.item(2)); // no current one: the first
    shown.click(shown.cell(3), Qt::LeftButton, Qt::ControlModifier);
    QCOMPARE(shown->SelectedItem(), shown.item(3));
    shown->ListItems()->Remove(3);
    QVERIFY(shown->SelectedItem());
}

void ReportListTest::hitsRowsByTwipsFromTheCorner()
{
    const ShownList shown(5);
    const auto hit = [&](QPoint place) {
        const QPoint inList = shown->mapFrom(&shown.form, place);
        return shown->HitTest(static_cast<float>(Twips::fromPixelsX(inList.x(), *shown.list)),
                              static_cast<float>(Twips::fromPixelsY(inList.y(), *shown.list)));
    };
    for (int row = 1; row <= 5; ++row)
        QCOMPARE(hit(shown.cell(row, 2)), shown.item(row));
    QCOMPARE(hit(shown.header(1)), nullptr);
    QCOMPARE(hit(shown.below()), nullptr);
    QCOMPARE(hit(shown.inForm(QPoint(shown->viewport()->width() - 2, 10))), nullptr);
    QCOMPARE(hit(shown.inForm(QPoint(5, shown->viewport()->height() + 300))), nullptr);
    QCOMPARE(hit(QPoint(-100, -100)), nullptr);
}

void ReportListTest::knowsTheFirstVisibleRow()
{
    const ShownList shown(100);
    QCOMPARE(shown->GetFirstVisible(), shown.item(1));
    shown->verticalScrollBar()->setValue(20);
    QCOMPARE(shown->GetFirstVisible(), shown.item(21));
    shown->Clear();
    QCOMPARE(shown->GetFirstVisible(), nullptr);
}

void ReportListTest::bringsARowIntoView()
{
    const ShownList shown(100, 6);
    shown->horizontalScrollBar()->setValue(50);
    ListItem *item = shown.item(70);
    item->EnsureVisible();
    const int first = shown->GetFirstVisible()->Index();
    QVERIFY(first > 40 && first <= 70);
    QVERIFY(shown->viewport()->rect().contains(shown->visualRect(shown->model()->index(69, 1))));
    QCOMPARE(shown->horizontalScrollBar()->value(), 50);
    item->EnsureVisible(); // is visible: nothing moves
    QCOMPARE(shown->GetFirstVisible()->Index(), first);
    shown.item(3)->EnsureVisible();
    QCOMPARE(shown->GetFirstVisible(), shown.item(3));
}

void ReportListTest::bringsARowIntoViewOnceShown()
{
    ReportList list;
    list.ColumnHeaders()->Add();
    QList<RowContent> rows(1000);
    list.setRows(rows);
    list.ListItems()->Item(700)->EnsureVisible();
    list.resize(200, 150);
    list.show();
    QVERIFY(QTest::qWaitForWindowExposed(&list));
    QVERIFY(
        list.viewport()->rect().contains(list.visualRect(list.model()->index(699, 0)).center()));
}

void ReportListTest::goesToARow()
{
    const ShownList shown(100);
    ListEvents events(shown.list);
    shown->goToRow(80);
    QCOMPARE(shown->SelectedItem(), shown.item(80));
    QVERIFY(shown->GetFirstVisible()->Index() > 50);
    shown->goToRow(0);
    QCOMPARE(shown->SelectedItem(), nullptr);
    QCOMPARE(errorOf([&] { shown->goToRow(101); }), qint32{SubscriptOutOfRange});
    QCOMPARE(errorOf([&] { shown->goToRow(-1); }), qint32{SubscriptOutOfRange});
    QCOMPARE(events.take(), QString());
}

void ReportListTest::findsRows()
{
    const ShownList shown(20);
    shown.item(7)->setSubItem(2, u"Supply Air"_s);
    shown.item(9)->setTag(u"Supply"_s);
    QCOMPARE(shown->FindItem(u"text 1"_s), shown.item(1));
    QCOMPARE(shown->FindItem(u"text 1"_s, 0, 2), nullptr);
    QCOMPARE(shown->FindItem(u"text 1"_s, 0, 2, 1), shown.item(10));
    QCOMPARE(shown->FindItem(u"supply"_s, 1, 1, 1), shown.item(7));
    QCOMPARE(shown->FindItem(u"supply"_s, 1), nullptr);
    QCOMPARE(shown->FindItem(u"supply air"_s, 1, -5), shown.item(7));
    QCOMPARE(shown->FindItem(u"supply"_s, 2, 9), shown.item(9));
    QCOMPARE(shown->FindItem(u"supply"_s, 2, 10), nullptr);
    QCOMPARE(shown->FindItem(u"text 1"_s, 0, 1000), nullptr);
    QCOMPARE(errorOf([&] { shown->FindItem(u"x"_s, 3); }), qint32{InvalidCall});
    QCOMPARE(errorOf([&] { shown->FindItem(u"x"_s, -1); }), qint32{InvalidCall});
    QCOMPARE(errorOf([&] { shown->FindItem(u"x"_s, 0, 1, 2); }), qint32{InvalidCall});
}

void ReportListTest::writesASubItemOfAllRows()
{
    const ShownList shown(50);
    QSignalSpy changes(shown->model(), &QAbstractItemModel::dataChanged);
    shown->UpdateSubItems(u"off"_s, u"0"_s, 2);
    QCOMPARE(changes.count(), 1);
    for (int row = 1; row <= 50; ++row) {
        QCOMPARE(shown.item(row)->SubItem(2), u"off"_s);
        QCOMPARE(shown.item(row)->SubItemTag(2), u"0"_s);
        QCOMPARE(shown.item(row)->SubItem(1), QString());
    }
    shown->UpdateSubItems(QString(), QString(), 2);
    QCOMPARE(shown.item(50)->SubItem(2), QString());
    QCOMPARE(shown.item(50)->SubItemTag(2), QString());
}

void ReportListTest::refusesSubItemsOfNoColumn()
{
    const ShownList shown(3, 3);
    QSignalSpy changes(shown->model(), &QAbstractItemModel::dataChanged);
    for (const qint16 index : {qint16{-1}, qint16{0}, qint16{3}, qint16{32767}})
        QCOMPARE(errorOf([&] { shown->UpdateSubItems(u"x"_s, {}, index); }),
                 qint32{SubscriptOutOfRange});
    QCOMPARE(changes.count(), 0);
    QCOMPARE(shown.item(1)->Text(), u"Text 1"_s);
}

void ReportListTest::keepsSelectionAndPlaceOverAnUpdate()
{
    const ShownList shown(100);
    shown->setMultiSelect(true);
    for (const int row : {30, 31, 40})
        shown.item(row)->setSelected(true);
    shown->verticalScrollBar()->setValue(25);
    shown->UpdateSubItems(u"x"_s, {}, 1);
    shown->fitColumns();
    QCOMPARE(shown->GetFirstVisible(), shown.item(26));
    for (const int row : {30, 31, 40})
        QVERIFY(shown.item(row)->Selected());
}

void ReportListTest::replacesAllRows()
{
    const ShownList shown;
    QSignalSpy resets(shown->model(), &QAbstractItemModel::modelReset);
    ListItem *old = shown.item(1);
    QList<RowContent> rows;
    for (int i = 1; i <= 3; ++i)
        rows.append({u"new%1"_s.arg(i), u"0%1"_s.arg(i), {}, {u"a"_s, u"b"_s}});
    shown->setRows(rows);
    QCOMPARE(resets.count(), 1);
    QVERIFY(!old->isAlive());
    QCOMPARE(shown->ListItems()->Count(), 3);
    QCOMPARE(shown->ListItems()->Item(u"new3"_s)->SubItem(2), u"b"_s);
    rows.append(rows.first());
    QCOMPARE(errorOf([&] { shown->setRows(rows); }), qint32{InvalidCall});
    QCOMPARE(errorOf([&] { shown->appendRows(rows); }), qint32{InvalidCall});
    QCOMPARE(shown->ListItems()->Count(), 3);
    shown->Clear();
    QCOMPARE(resets.count(), 2);
    QCOMPARE(shown->ListItems()->Count(), 0);
}

void ReportListTest::keepsRowsOverAChangeOfColumns()
{
    const ShownList shown(3, 3);
    shown.item(2)->setSubItem(2, u"kept"_s);
    ListItem *item = shown.item(2);
    shown->ColumnHeaders()->Clear();
    QCOMPARE(shown->ListItems()->Count(), 3);
    QCOMPARE(item->Text(), u"Text 2"_s);
    for (int column = 0; column < 3; ++column)
        shown->ColumnHeaders()->Add();
    QCOMPARE(item->SubItem(2), u"kept"_s);
}

void ReportListTest::paintsAtOnce()
{
    class Painted : public QObject
    {
    public:
        int count = 0;
        bool eventFilter(QObject *, QEvent *event) override
        {
            count += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
    } painted;
    const ShownList shown;
    QCoreApplication::processEvents();
    shown->viewport()->installEventFilter(&painted);
    shown->Refresh();
    QCOMPARE(painted.count, 1);
}

void ReportListTest::raisesNothingForTheProgram()
{
    const ShownList shown;
    shown->setCheckBoxes(true);
    ListEvents events(shown.list);
    shown->setSelectedItem(shown.item(2));
    shown.item(3)->setSelected(true);
    shown.item(3)->setChecked(true);
    shown.item(3)->setText(u"x"_s);
    shown->Add();
    shown->Clear();
    QCoreApplication::processEvents();
    QCOMPARE(events.take(), QString());
}

void ReportListTest::livesWithoutColumns()
{
    const ShownList shown(3, 0);
    QCOMPARE(shown->ListItems()->Count(), 3);
    shown.item(1)->setText(u"x"_s);
    shown.item(1)->setForeground(Qt::red);
    shown.item(1)->setSelected(true);
    shown.item(1)->EnsureVisible();
    QCOMPARE(shown->SelectedItem(), nullptr);
    QCOMPARE(shown->FindItem(u"X"_s), shown.item(1));
    shown->fitColumns();
    shown->StartLabelEdit();
    shown->goToRow(2);
    shown.key(Qt::Key_Down);
    shown.key(Qt::Key_End);
    shown.click(shown.below());
    QCOMPARE(shown->GetSubItemWidth(0), 0);
}

void ReportListTest::holdsThirtyThousandRows()
{
    const ShownList shown(0, 14);
    QList<RowContent> rows;
    for (int i = 1; i <= 32767; ++i)
        rows.append({u"Inputs%1"_s.arg(i), QString::number(i)});
    shown->setRows(rows);
    shown->UpdateSubItems(u" "_s, {}, 13);
    QCOMPARE(shown->ListItems()->Count(), 32767);
    ListItem *last = shown->ListItems()->Item(u"Inputs32767"_s);
    QCOMPARE(last->Index(), 32767);
    last->EnsureVisible();
    QVERIFY(shown->GetFirstVisible()->Index() > 32700);
    QCOMPARE(last->SubItem(13), u" "_s);
}

void ReportListTest::goesWhileADragIsOverIt()
{
    auto list = std::make_unique<ReportList>();
    list->setAcceptDrops(true);
    list->show();
    QMimeData data;
    data.setText(u"text"_s);
    QDragEnterEvent entered(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(list->viewport(), &entered);
    QVERIFY(entered.isAccepted());
    const QPointer<ReportList> life(list.get());
    list.reset();
    QVERIFY(!life);
}

ORVT_TEST(ReportListTest)
#include "ReportListTest.moc"
