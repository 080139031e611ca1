#include "support/MemoryInUse.h"
#include "support/RandomSeed.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/list/ReportListFixture.h"

#include <cmath>
#include <random>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class ListHandlesTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void givesOneHandleForARow();
    void readsAndWritesARow();
    void followsItsRow();
    void failsClearlyOnceItsRowIsGone();
    void takesNoMemoryForRowsThatAreGone();
    void neverComesBackWithTheKey();
    void countsFromOne();
    void refusesAKeyInUse();
    void findsByKeyAsWritten();
    void refusesSubItemsBesideTheColumns();
    void handsOutColumns();
    void keepsWidthsInTwips();
    void refusesNegativeWidths();
    void failsClearlyOnceItsColumnIsGone();
    void hidesRowsAndColumns();
    void holdsUnderRandomOperations();
};

void ListHandlesTest::givesOneHandleForARow()
{
    ReportList list;
    ListItem *added = list.Add(0, u"a"_s, u"one"_s);
    QCOMPARE(list.ListItems()->Item(1), added);
    QCOMPARE(list.ListItems()->Item(u"a"_s), added);
    QVERIFY(added->isAlive());
    QCOMPARE(added->Index(), 1);
    QCOMPARE(added->Key(), u"a"_s);
    QCOMPARE(added->Text(), u"one"_s);
}

void ListHandlesTest::readsAndWritesARow()
{
    ReportList list;
    for (const QString &text : {u"#"_s, u"Label"_s, u"Value"_s})
        list.ColumnHeaders()->Add(0, text, text);
    ListItem *item = list.Add(0, u"a"_s, u"01"_s);
    item->setText(u"02"_s);
    item->setTag(u"tag"_s);
    item->setKey(u"b"_s);
    item->setSubItem(2, u"21.5"_s);
    item->setSubItemTag(1, u"unit"_s);
    item->setPictureKey(u"Inputs"_s);
    item->setForeground(Qt::red);
    item->setChecked(true);
    QCOMPARE(item->Text(), u"02"_s);
    QCOMPARE(item->Tag(), u"tag"_s);
    QCOMPARE(list.ListItems()->Item(u"b"_s), item);
    QCOMPARE(item->SubItem(1), QString());
    QCOMPARE(item->SubItem(2), u"21.5"_s);
    QCOMPARE(item->SubItemTag(1), u"unit"_s);
    QCOMPARE(item->SubItemTag(2), QString());
    QCOMPARE(item->PictureKey(), u"Inputs"_s);
    QCOMPARE(item->foreground(), QColor(Qt::red));
    QVERIFY(item->Checked());
    QCOMPARE(list.model()->index(0, 2).data().toString(), u"21.5"_s);
    QVERIFY(!item->Selected());
    item->setSelected(true);
    QVERIFY(item->Selected());
}

void ListHandlesTest::followsItsRow()
{
    ReportList list;
    ListItem *second = list.Add(0, u"b"_s);
    ListItem *first = list.Add(1, u"a"_s);
    ListItem *between = list.Add(2, u"c"_s);
    QCOMPARE(first->Index(), 1);
    QCOMPARE(between->Index(), 2);
    QCOMPARE(second->Index(), 3);
    list.ListItems()->Remove(1);
    QCOMPARE(between->Index(), 1);
    QCOMPARE(second->Index(), 2);
}

void ListHandlesTest::failsClearlyOnceItsRowIsGone()
{
    ReportList list;
    list.ColumnHeaders()->Add();
    list.ColumnHeaders()->Add();
    ListItem *item = list.Add(0, u"a"_s, u"one"_s);
    list.ListItems()->Remove(u"a"_s);
    QVERIFY(!item->isAlive());
    const std::function<void()> members[] = {
        [&] { item->Index(); },
        [&] { item->Key(); },
        [&] { item->setKey(u"b"_s); },
        [&] { item->Text(); },
        [&] { item->setText({}); },
        [&] { item->Tag(); },
        [&] { item->setTag({}); },
        [&] { item->SubItem(1); },
        [&] { item->setSubItem(1, {}); },
        [&] { item->SubItemTag(1); },
        [&] { item->setSubItemTag(1, {}); },
        [&] { item->PictureKey(); },
        [&] { item->setPictureKey({}); },
        [&] { item->foreground(); },
        [&] { item->setForeground({}); },
        [&] { item->Selected(); },
        [&] { item->setSelected(true); },
        [&] { item->Checked(); },
        [&] { item->setChecked(true); },
        [&] { item->Visible(); },
        [&] { item->setVisible(true); },
        [&] { item->EnsureVisible(); },
        [&] { list.setSelectedItem(item); },
    };
    for (const auto &member : members)
        QCOMPARE(errorOf(member), qint32{ObjectNotSet});
    try {
        item->setSubItem(1, {});
        QFAIL("no error");
    } catch (const Error &error) {
        QCOMPARE(error.Source(), u"ListItem.setSubItem"_s);
        QVERIFY(!error.Description().isEmpty());
    }
}

void ListHandlesTest::takesNoMemoryForRowsThatAreGone()
{
    ReportList list;
    list.ColumnHeaders()->Add();
    QList<ListItem *> held;
    qint64 before = 0;
    for (int round = 0; round < 1000; ++round) {
        list.setRows(QList<RowContent>(1000));
        for (int row = 1; row <= 1000; ++row) {
            ListItem *item = list.ListItems()->Item(row);
            if (row == 500 && round % 100 == 0)
                held.append(item);
        }
        if (round == 100)
            before = memoryInUse();
    }
    QVERIFY(before > 0);
    const qint64 more = memoryInUse() - before;
    QVERIFY2(more < 4'000'000, qPrintable(QString::number(more)));
    QCOMPARE(list.ListItems()->Item(7)->Index(), 7);
    list.Clear();
    for (ListItem *item : std::as_const(held)) {
        QVERIFY(!item->isAlive());
        QCOMPARE(errorOf([&] { item->Text(); }), qint32{ObjectNotSet});
        QCOMPARE(errorOf([&] { item->setSelected(true); }), qint32{ObjectNotSet});
        QCOMPARE(errorOf([&] { list.setSelectedItem(item); }), qint32{ObjectNotSet});
        QVERIFY(item != list.Add());
    }
}

void ListHandlesTest::neverComesBackWithTheKey()
{
    ReportList list;
    ListItem *old = list.Add(0, u"a"_s);
    list.Clear();
    QVERIFY(!old->isAlive());
    ListItem *next = list.Add(0, u"a"_s);
    QVERIFY(next != old);
    QVERIFY(!old->isAlive());
    list.setRows({RowContent{u"a"_s}});
    QVERIFY(!next->isAlive());
}

void ListHandlesTest::countsFromOne()
{
    ReportList list;
    ListItems &items = *list.ListItems();
    list.Add(0, u"a"_s);
    list.Add(0, u"b"_s);
    QCOMPARE(items.Count(), 2);
    QCOMPARE(items.Item(2)->Key(), u"b"_s);
    for (const qint32 index : {0, -1, 3}) {
        QCOMPARE(errorOf([&] { items.Item(index); }), qint32{SubscriptOutOfRange});
        QCOMPARE(errorOf([&] { items.Remove(index); }), qint32{SubscriptOutOfRange});
    }
    QCOMPARE(errorOf([&] { items.Add(-1); }), qint32{SubscriptOutOfRange});
    QCOMPARE(errorOf([&] { items.Add(4); }), qint32{SubscriptOutOfRange});
    QCOMPARE(items.Count(), 2);
    items.Add(3, u"c"_s);
    QCOMPARE(items.Item(3)->Key(), u"c"_s);
}

void ListHandlesTest::refusesAKeyInUse()
{
    ReportList list;
    ListItem *first = list.Add(0, u"a"_s);
    QCOMPARE(errorOf([&] { list.Add(1, u"a"_s); }), qint32{InvalidCall});
    QCOMPARE(list.ListItems()->Count(), 1);
    list.Add();
    list.Add(); // without a key any number of rows
    list.Add(0, u"A"_s);
    QCOMPARE(list.ListItems()->Count(), 4);
    QCOMPARE(errorOf([&] { first->setKey(u"A"_s); }), qint32{InvalidCall});
    first->setKey(u"a"_s); // its own
    QCOMPARE(first->Key(), u"a"_s);
}

void ListHandlesTest::findsByKeyAsWritten()
{
    ReportList list;
    list.Add(0, u"Inputs1"_s);
    list.Add();
    QCOMPARE(list.ListItems()->Item(u"Inputs1"_s)->Index(), 1);
    QCOMPARE(errorOf([&] { list.ListItems()->Item(u"inputs1"_s); }), qint32{InvalidCall});
    QCOMPARE(errorOf([&] { list.ListItems()->Item(QString()); }), qint32{InvalidCall});
    QCOMPARE(errorOf([&] { list.ListItems()->Remove(u"inputs1"_s); }), qint32{InvalidCall});
}

void ListHandlesTest::refusesSubItemsBesideTheColumns()
{
    ReportList list;
    list.ColumnHeaders()->Add();
    list.ColumnHeaders()->Add();
    list.ColumnHeaders()->Add();
    ListItem *item = list.Add();
    for (const qint32 index : {-1, 0, 3}) {
        QCOMPARE(errorOf([&] { item->SubItem(index); }), qint32{SubscriptOutOfRange});
        QCOMPARE(errorOf([&] { item->setSubItem(index, {}); }), qint32{SubscriptOutOfRange});
        QCOMPARE(errorOf([&] { item->SubItemTag(index); }), qint32{SubscriptOutOfRange});
        QCOMPARE(errorOf([&] { item->setSubItemTag(index, {}); }), qint32{SubscriptOutOfRange});
    }
}

void ListHandlesTest::handsOutColumns()
{
    ReportList list;
    ColumnHeaders &headers = *list.ColumnHeaders();
    ColumnHeader *label = headers.Add(0, u"Label"_s, u"Name"_s);
    ColumnHeader *number = headers.Add(1, u"#"_s, u"#"_s, 600, Qt::AlignRight);
    QCOMPARE(headers.Count(), 2);
    QCOMPARE(headers.Item(1), number);
    QCOMPARE(headers.Item(u"Label"_s), label);
    QCOMPARE(label->Index(), 2);
    QCOMPARE(label->Text(), u"Name"_s);
    QCOMPARE(number->alignment(), Qt::Alignment(Qt::AlignRight));
    label->setText(u"Nom"_s);
    label->setAlignment(Qt::AlignHCenter);
    QCOMPARE(list.model()->headerData(1, Qt::Horizontal).toString(), u"Nom"_s);
    QCOMPARE(label->Key(), u"Label"_s);
    QCOMPARE(errorOf([&] { headers.Add(0, u"Label"_s); }), qint32{InvalidCall});
    QCOMPARE(errorOf([&] { label->setKey(u"#"_s); }), qint32{InvalidCall});
    QCOMPARE(errorOf([&] { headers.Item(u"label"_s); }), qint32{InvalidCall});
    QCOMPARE(errorOf([&] { headers.Item(QString()); }), qint32{InvalidCall});
    for (const qint32 index : {0, -1, 3})
        QCOMPARE(errorOf([&] { headers.Item(index); }), qint32{SubscriptOutOfRange});
    QCOMPARE(errorOf([&] { headers.Add(4); }), qint32{SubscriptOutOfRange});
    QCOMPARE(headers.Count(), 2);
}

void ListHandlesTest::keepsWidthsInTwips()
{
    ReportList list;
    ColumnHeader *first = list.ColumnHeaders()->Add();
    ColumnHeader *second = list.ColumnHeaders()->Add(0, {}, {}, 3000);
    list.ColumnHeaders()->Add();
    const float pixel = static_cast<float>(Twips::fromPixelsX(1, list));
    QVERIFY(std::abs(first->Width() - 1440) <= pixel / 2);
    QVERIFY(std::abs(second->Width() - 3000) <= pixel / 2);
    QCOMPARE(list.columnWidth(1), Twips::toPixelsX(3000, list));
    first->setWidth(0);
    QCOMPARE(first->Width(), 0.0F);
    QCOMPARE(list.GetSubItemWidth(0), 0);
    QCOMPARE(list.GetSubItemWidth(1), qRound(second->Width()));
    for (const qint16 index : {qint16{-1}, qint16{3}})
        QCOMPARE(list.GetSubItemWidth(index), 0);
}

void ListHandlesTest::refusesNegativeWidths()
{
    ReportList list;
    ColumnHeader *column = list.ColumnHeaders()->Add();
    const float before = column->Width();
    QCOMPARE(errorOf([&] { column->setWidth(-1); }), qint32{InvalidCall});
    QCOMPARE(errorOf([&] { column->setWidth(std::nanf("")); }), qint32{InvalidCall});
    QCOMPARE(errorOf([&] { list.ColumnHeaders()->Add(0, {}, {}, -1); }), qint32{InvalidCall});
    QCOMPARE(column->Width(), before);
    QCOMPARE(list.ColumnHeaders()->Count(), 1);
    column->setWidth(1e30F); // as wide as a column can be
    QVERIFY(column->Width() > before);
}

void ListHandlesTest::failsClearlyOnceItsColumnIsGone()
{
    ReportList list;
    ColumnHeader *first = list.ColumnHeaders()->Add(0, u"a"_s);
    ColumnHeader *second = list.ColumnHeaders()->Add(0, u"b"_s);
    list.ColumnHeaders()->Remove(u"a"_s);
    QCOMPARE(second->Index(), 1);
    const std::function<void()> members[] = {
        [&] { first->Index(); },          [&] { first->Key(); },
        [&] { first->setKey({}); },       [&] { first->Text(); },
        [&] { first->setText({}); },      [&] { first->Width(); },
        [&] { first->setWidth(1); },      [&] { first->alignment(); },
        [&] { first->setAlignment({}); }, [&] { first->Visible(); },
        [&] { first->setVisible(true); },
    };
    for (const auto &member : members)
        QCOMPARE(errorOf(member), qint32{ObjectNotSet});
    list.ColumnHeaders()->Clear();
    QVERIFY(!second->isAlive());
    QCOMPARE(list.ColumnHeaders()->Count(), 0);
}

void ListHandlesTest::hidesRowsAndColumns()
{
    const ShownList shown(3, 3);
    shown.item(1)->setVisible(false);
    QVERIFY(!shown.item(1)->Visible());
    QCOMPARE(shown->GetFirstVisible(), shown.item(2));
    QCOMPARE(shown.item(2)->Index(), 2);
    ColumnHeader *column = shown->ColumnHeaders()->Item(2);
    column->setVisible(false);
    QVERIFY(!column->Visible());
    QVERIFY(shown->isColumnHidden(1));
    column->setVisible(true);
    QVERIFY(column->Width() > 0);
}

// Handles and rows against a simple list of keys.
void ListHandlesTest::holdsUnderRandomOperations()
{
    const unsigned seed = randomSeed();
    std::mt19937 random(seed);
    const auto below = [&random](qsizetype limit) {
        return static_cast<int>(std::uniform_int_distribution<qsizetype>(0, limit - 1)(random));
    };
    ReportList list;
    list.ColumnHeaders()->Add();
    QList<std::pair<QString, ListItem *>> expected;
    QList<ListItem *> dead;
    for (int step = 0; step < 3000; ++step) {
        const int kind = below(10);
        if (kind < 5) {
            const int at = below(expected.size() + 1);
            const QString key = u"k%1"_s.arg(step);
            expected.insert(at, {key, list.Add(at + 1, key)});
        } else if (kind < 9 && !expected.isEmpty()) {
            const int at = below(expected.size());
            dead.append(expected.takeAt(at).second);
            list.ListItems()->Remove(at + 1);
        } else if (below(50) == 0) {
            for (const auto &[key, item] : std::as_const(expected))
                dead.append(item);
            expected.clear();
            list.Clear();
        }
        if (expected.isEmpty())
            continue;
        const int at = below(expected.size());
        const auto &[key, item] = expected.at(at);
        if (item->Index() != at + 1 || list.ListItems()->Item(key) != item ||
            list.ListItems()->Item(at + 1) != item)
            QFAIL(qPrintable(u"seed %1, step %2"_s.arg(seed).arg(step)));
    }
    for (const ListItem *item : std::as_const(dead))
        QVERIFY2(!item->isAlive(), qPrintable(u"seed %1"_s.arg(seed)));
}

ORVT_TEST(ListHandlesTest)
#include "ListHandlesTest.moc"
